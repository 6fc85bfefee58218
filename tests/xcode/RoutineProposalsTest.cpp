#include <gtest/gtest.h>

#include "xcode/RoutineProposals.h"

namespace glossmill {
namespace {

std::string times(int count, const std::string& text) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

std::vector<std::string> proposedFor(const std::string& source) {
  RoutineProposals proposals([](std::string_view text) { return text == "Hoist" || text == "a \"b\""; });
  proposals.addSource(source);
  return proposals.best();
}

TEST(RoutineProposals, AreNamesThatAreMostlyCalledWithKeys) {
  EXPECT_EQ(proposedFor(times(6, "L(@\"Hoist\"); ") + times(5, "M( \"a \\\"b\\\"\", nil); ") +
                        times(5, "Log(@\"x\");") + times(5, "Log(@\"Hoist\");")),
            (std::vector<std::string>{"L(key)", "M(key, comment)"}));
}

TEST(RoutineProposals, NeedFiveCalls) {
  EXPECT_TRUE(proposedFor(times(4, "L(@\"Hoist\"); ")).empty());
}

TEST(RoutineProposals, ApplesOwnAreKnown) {
  EXPECT_TRUE(proposedFor(times(9, "NSLocalizedString(@\"Hoist\", nil); x = CFSTR(\"Hoist\"); ")).empty());
}

TEST(RoutineProposals, BrokenLiteralsDoNoHarm) {
  EXPECT_TRUE(proposedFor("L(\"Hoist").empty());
  EXPECT_EQ(proposedFor("L(\"open\n" + times(5, "L(\"Hoist\");")).size(), 1u);
  EXPECT_TRUE(proposedFor("\"").empty());
}

}  // namespace
}  // namespace glossmill
