#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "scan/ForwardSearch.h"

namespace glossmill {
namespace {

TEST(ForwardSearch, FindsTheFirstPlaceAtOrAfterAPlace) {
  ForwardSearch search("a,b,c", ',');
  EXPECT_EQ(search.next(0), 1U);
  EXPECT_EQ(search.next(1), 1U);
  EXPECT_EQ(search.next(2), 3U);
  EXPECT_EQ(search.next(4), 5U);
  EXPECT_EQ(search.next(5), 5U);
}

TEST(ForwardSearch, GivesTheLengthOfATextThatDoesNotHoldTheByte) {
  EXPECT_EQ(ForwardSearch("abc", ',').next(1), 3U);
  EXPECT_EQ(ForwardSearch("", ',').next(0), 0U);
}

TEST(ForwardSearch, AnswersQuestionsThatGoBackwardsToo) {
  ForwardSearch search(",a,b", ',');
  EXPECT_EQ(search.next(1), 2U);
  EXPECT_EQ(search.next(0), 0U);
  EXPECT_EQ(search.next(3), 4U);
  EXPECT_EQ(search.next(2), 2U);
}

TEST(ForwardSearch, AgreesWithAPlainSearchOnRandomQuestions) {
  std::mt19937 random(3);
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    for (std::size_t left = random() % 50; left > 0; --left) text += ",ab c"[random() % 5];
    ForwardSearch search(text, ',');
    for (int question = 0; question < 30; ++question) {
      const std::size_t from = random() % (text.size() + 1);
      ASSERT_EQ(search.next(from), std::min(text.find(',', from), text.size())) << text << " from " << from;
    }
  }
}

}  // namespace
}  // namespace glossmill
