#include <gtest/gtest.h>

#include <random>
#include <string>

#include "scan/ParenthesisPairs.h"

namespace glossmill {
namespace {

using Places = std::vector<std::size_t>;

Places closes(std::string_view text, const Places& opens) {
  return closingParentheses(text, opens, CancelFlag());
}

/// Counts anew from one "(".
std::size_t closeByCounting(std::string_view text, std::size_t open) {
  int depth = 0;
  for (std::size_t at = open; at < text.size(); ++at) {
    if (text[at] == '(') ++depth;
    if (text[at] == ')' && --depth == 0) return at;
  }
  return text.size();
}

TEST(ParenthesisPairs, FindsNothingForNoQuestion) {
  EXPECT_EQ(closes("(())", {}), Places());
  EXPECT_EQ(closes("", {}), Places());
}

TEST(ParenthesisPairs, FindsThePartnerOfEachParenthesis) {
  EXPECT_EQ(closes("(a(b)c)(d)", {0, 2, 7}), (Places{6, 4, 9}));
}

TEST(ParenthesisPairs, SkipsParenthesesThatNobodyAskedFor) {
  EXPECT_EQ(closes("))((()))", {2}), Places{7});
  EXPECT_EQ(closes("))((()))", {3}), Places{6});
}

TEST(ParenthesisPairs, GivesTheLengthOfTheTextWhenNothingCloses) {
  EXPECT_EQ(closes("((a)", {0, 1}), (Places{4, 3}));
}

TEST(ParenthesisPairs, CountsParenthesesInsideLiterals) {
  EXPECT_EQ(closes("(\")\")", {0}), Places{2});
}

TEST(ParenthesisPairs, AnswersTheSameQuestionAsOftenAsItIsAsked) {
  EXPECT_EQ(closes("x((a))", {1, 1, 2, 2, 2}), (Places{5, 5, 4, 4, 4}));
}

TEST(ParenthesisPairs, TakesTheEndOfTheTextForNoParenthesis) {
  EXPECT_EQ(closes("(a)", {0, 3, 3}), (Places{2, 3, 3}));
}

TEST(ParenthesisPairs, LeavesEverythingUnbalancedWhenItIsCanceled) {
  CancelFlag canceled;
  canceled.set(true);
  EXPECT_EQ(closingParentheses("(a)(b)", {0, 3}, canceled), (Places{6, 6}));
}

TEST(ParenthesisPairs, AgreesWithCountingOnRandomTexts) {
  std::mt19937 random(7);
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    for (std::size_t left = random() % 30; left > 0; --left) text += "(()) a"[random() % 6];
    Places opens;
    Places expected;
    for (std::size_t at = 0; at < text.size(); ++at) {
      for (std::size_t times = text[at] == '(' ? random() % 3 : 0; times > 0; --times) {
        opens.push_back(at);
        expected.push_back(closeByCounting(text, at));
      }
    }
    ASSERT_EQ(closes(text, opens), expected) << text;
  }
}

}  // namespace
}  // namespace glossmill
