#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "scan/ForwardSearch.h"

namespace glossmill {
namespace {

TEST(ForwardSearch, FindsTheFirstPlaceAtOrAfterAPlace) {
  ForwardSearch search("a,b,c", ',');
  EXPECT_EQ(search.next(0, 5), 1U);
  EXPECT_EQ(search.next(1, 5), 1U);
  EXPECT_EQ(search.next(2, 5), 3U);
  EXPECT_EQ(search.next(4, 5), 5U);
  EXPECT_EQ(search.next(5, 5), 5U);
}

TEST(ForwardSearch, FindsNothingAtOrBehindTheLimit) {
  ForwardSearch search("a,b,c", ',');
  EXPECT_EQ(search.next(0, 1), 1U);
  EXPECT_EQ(search.next(0, 2), 1U);
  EXPECT_EQ(search.next(2, 3), 3U);
  EXPECT_EQ(search.next(3, 2), 2U);
  EXPECT_EQ(search.next(2, 4), 3U);
}

TEST(ForwardSearch, GivesTheLimitInATextThatDoesNotHoldTheByte) {
  EXPECT_EQ(ForwardSearch("abc", ',').next(1, 3), 3U);
  EXPECT_EQ(ForwardSearch("", ',').next(0, 0), 0U);
}

TEST(ForwardSearch, AnswersQuestionsThatGoBackwardsToo) {
  ForwardSearch search(",a,b", ',');
  EXPECT_EQ(search.next(1, 4), 2U);
  EXPECT_EQ(search.next(0, 4), 0U);
  EXPECT_EQ(search.next(3, 4), 4U);
  EXPECT_EQ(search.next(2, 4), 2U);
}

TEST(ForwardSearch, AgreesWithAPlainSearchOnRandomQuestions) {
  std::mt19937 random(3);
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    for (std::size_t left = random() % 50; left > 0; --left) text += ",ab c"[random() % 5];
    ForwardSearch search(text, ',');
    for (int question = 0; question < 30; ++question) {
      const std::size_t from = random() % (text.size() + 1);
      const std::size_t limit = from + random() % (text.size() - from + 1);
      ASSERT_EQ(search.next(from, limit), std::min(text.find(',', from), limit)) << text << " " << from << " " << limit;
    }
  }
}

}  // namespace
}  // namespace glossmill
