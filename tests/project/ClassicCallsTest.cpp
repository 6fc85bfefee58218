#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "project/ClassicCalls.h"

namespace glossmill {
namespace {

/// "line:column key", or the reason in its place.
std::vector<std::string> callsOf(std::string_view text) {
  std::vector<std::string> lines;
  for (const ClassicCall& call : classicCalls(text)) {
    lines.push_back(std::to_string(call.line) + ":" + std::to_string(call.column) + " " +
                    std::string(call.rejection ? sentenceOf(*call.rejection) : call.key));
  }
  return lines;
}

TEST(ClassicCalls, StandAtTheNameOfTheRoutine) {
  EXPECT_EQ(
      callsOf("a = NSLocalizedString(@\"k\", @\"c\");\n\xC3\xA4\xF0\x9F\x9A\xA2 NSLocalizedString(@\"l\", @\"c\");"),
      (std::vector<std::string>{"1:5 k", "2:5 l"}));
}

TEST(ClassicCalls, NestedOnesComeInTheOrderOfTheirNames) {
  EXPECT_EQ(callsOf("NSLocalizedString(NSLocalizedString(@\"k\", @\"c\"), @\"d\")"),
            (std::vector<std::string>{"1:1 k", "1:19 k"}));
}

TEST(ClassicCalls, SayWhyTheyWereRejected) {
  EXPECT_EQ(callsOf("NSLocalizedString(title, nil);\nNSLocalizedString(@\"k\", nil);\nNSLocalizedString"),
            (std::vector<std::string>{"1:1 The call was not taken: its key is no literal.",
                                      "2:1 The call was not taken: its comment is no literal.",
                                      "3:1 The call was not taken: no parenthesis follows its name."}));
}

}  // namespace
}  // namespace glossmill
