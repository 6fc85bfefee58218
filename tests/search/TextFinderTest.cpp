#include <gtest/gtest.h>

#include "search/TextFinder.h"

namespace glossmill {
namespace {

using Ranges = std::vector<TextRange>;

Ranges find(const FindWish& wish, std::string_view text) {
  const Result<TextFinder> finder = TextFinder::of(wish);
  EXPECT_TRUE(finder.ok());
  Ranges ranges;
  if (!finder.ok()) return ranges;
  for (const ExpressionMatch& match : finder.value().find(text)) ranges.push_back(match.range);
  return ranges;
}

FindWish plain(std::string text) {
  FindWish wish;
  wish.text = std::move(text);
  return wish;
}

FindWish wholeWord(std::string text) {
  FindWish wish = plain(std::move(text));
  wish.wholeWords = true;
  return wish;
}

TEST(TextFinder, FindsAllPlacesFromTheLeftAndNoneInAnother) {
  EXPECT_EQ(find(plain("aa"), "aaaaa"), (Ranges{{0, 2}, {2, 2}}));
  EXPECT_TRUE(find(plain("b"), "aaa").empty());
  EXPECT_TRUE(find(plain("b"), "").empty());
}

TEST(TextFinder, DoesNotMindTheCaseUnlessItIsTold) {
  EXPECT_EQ(find(plain("ÖFFNEN"), "Nicht öffnen"), (Ranges{{6, 7}}));
  FindWish wish = plain("Öffnen");
  wish.matchesCase = true;
  EXPECT_EQ(find(wish, "öffnen Öffnen"), (Ranges{{8, 7}}));
}

TEST(TextFinder, TakesSignsOfExpressionsForWhatTheyAre) {
  EXPECT_EQ(find(plain("(.*)"), "a (.*) b"), (Ranges{{2, 4}}));
}

TEST(TextFinder, FindsWholeWordsOnly) {
  EXPECT_EQ(find(wholeWord("art"), "art, party art\nArt"), (Ranges{{0, 3}, {11, 3}, {15, 3}}));
  EXPECT_TRUE(find(wholeWord("fähr"), "Fähre").empty());
  EXPECT_TRUE(find(wholeWord("ähre"), "Fähre").empty());
  EXPECT_EQ(find(wholeWord("Fähre"), "die »Fähre«"), (Ranges{{6, 6}}));
}

TEST(TextFinder, FindsWholeWordsThatBeginOrEndWithASign) {
  EXPECT_EQ(find(wholeWord("%@"), "x%@x"), (Ranges{{1, 2}}));
}

TEST(TextFinder, LooksForExpressions) {
  FindWish wish = plain("[a-z]+\\d");
  wish.isExpression = true;
  EXPECT_EQ(find(wish, "Dock1 22 pier3"), (Ranges{{0, 5}, {9, 5}}));
  wish.wholeWords = true;
  wish.text = "o\\w?";
  EXPECT_EQ(find(wish, "ox box o"), (Ranges{{0, 2}, {7, 1}}));
}

TEST(TextFinder, RefusesTheEmptyTextAndWrongExpressions) {
  EXPECT_EQ(TextFinder::of(plain("")).error().sentence, "There is nothing to look for.");
  FindWish wish = plain("(");
  EXPECT_TRUE(TextFinder::of(wish).ok());
  wish.isExpression = true;
  EXPECT_EQ(TextFinder::of(wish).error().sentence, "At character 1 of the expression a ( is not closed.");
}

}  // namespace
}  // namespace glossmill
