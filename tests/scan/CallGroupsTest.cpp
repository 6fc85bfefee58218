#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include "scan/CallGroups.h"

namespace glossmill {

inline void PrintTo(const CallPlaces& call, std::ostream* out) {
  *out << call.name << " (" << call.open << " " << call.close << ")";
}

namespace {

using Calls = std::vector<CallPlaces>;

constexpr const char* kName = "NSLocalizedString";

/// "C" stands for the name of a call.
std::string sourceOf(std::string_view pattern) {
  std::string text;
  for (const char c : pattern) text += c == 'C' ? std::string(kName) : std::string(1, c);
  return text;
}

std::vector<Calls> groupsOf(const std::string& text) {
  std::vector<Calls> groups;
  CallGroups source(text);
  while (source.next()) {
    EXPECT_TRUE(source.balance(CancelFlag()));
    groups.push_back(source.calls());
  }
  return groups;
}

/// Each call for itself.
Calls callsByCounting(const std::string& text) {
  Calls calls;
  for (std::size_t name = text.find(kName); name != std::string::npos; name = text.find(kName, name + 1)) {
    const std::size_t open = std::min(text.find('(', name), text.size());
    std::size_t close = text.size();
    int depth = 0;
    for (std::size_t at = open; at < text.size() && close == text.size(); ++at) {
      if (text[at] == '(') ++depth;
      if (text[at] == ')' && --depth == 0) close = at;
    }
    calls.push_back({name, open, close});
  }
  return calls;
}

TEST(CallGroups, GivesCallsThatFollowEachOtherOneByOne) {
  EXPECT_EQ(groupsOf(sourceOf("C(a) C(b(c))")), (std::vector<Calls>{{{0, 17, 19}}, {{21, 38, 43}}}));
}

TEST(CallGroups, PutsACallInsideTheParenthesesOfAnotherIntoItsGroup) {
  EXPECT_EQ(groupsOf(sourceOf("C(C(a)b)")), (std::vector<Calls>{{{0, 17, 39}, {18, 35, 37}}}));
}

TEST(CallGroups, GivesNamesWithoutAParenthesisBetweenThemTheSameOnes) {
  EXPECT_EQ(groupsOf(sourceOf("CC(a)")), (std::vector<Calls>{{{0, 34, 36}, {17, 34, 36}}}));
}

TEST(CallGroups, LeavesANameWhoseParenthesisFollowsBehindTheGroupForTheNext) {
  EXPECT_EQ(groupsOf(sourceOf("C(C)(a)")), (std::vector<Calls>{{{0, 17, 35}}, {{18, 36, 38}}}));
}

TEST(CallGroups, GivesTheLengthOfTheTextForWhatIsMissing) {
  EXPECT_EQ(groupsOf(sourceOf("C")), (std::vector<Calls>{{{0, 17, 17}}}));
  EXPECT_EQ(groupsOf(sourceOf("C)(C(a)C")), (std::vector<Calls>{{{0, 18, 56}, {19, 36, 38}}, {{39, 56, 56}}}));
}

TEST(CallGroups, FindsNothingInATextWithoutACall) {
  EXPECT_EQ(groupsOf(""), std::vector<Calls>());
  EXPECT_EQ(groupsOf("f(x)"), std::vector<Calls>());
}

TEST(CallGroups, KnowsTheFirstCallOfAGroupBeforeItLooksAtItsParentheses) {
  const std::string text = sourceOf("C(C(a))");
  CallGroups source(text);
  ASSERT_TRUE(source.next());
  ASSERT_EQ(source.calls().size(), 1U);
  EXPECT_EQ(source.calls()[0].name, 0U);
}

TEST(CallGroups, StopsWhenItIsCanceled) {
  const std::string text = sourceOf("C(a)");
  CallGroups source(text);
  ASSERT_TRUE(source.next());
  CancelFlag canceled;
  canceled.set(true);
  EXPECT_FALSE(source.balance(canceled));
}

TEST(CallGroups, AgreesWithCountingOnRandomTexts) {
  std::mt19937 random(7);
  for (int round = 0; round < 20000; ++round) {
    std::string pattern;
    for (std::size_t left = random() % 40; left > 0; --left) pattern += "CC(())a"[random() % 7];
    const std::string text = sourceOf(pattern);
    Calls calls;
    for (const Calls& group : groupsOf(text)) calls.insert(calls.end(), group.begin(), group.end());
    ASSERT_EQ(calls, callsByCounting(text)) << pattern;
  }
}

}  // namespace
}  // namespace glossmill
