#include <gtest/gtest.h>

#include "search/TextGrams.h"

namespace glossmill {
namespace {

double likenessOf(std::string_view one, std::string_view other) {
  return likeness(gramsOf(one), gramsOf(other));
}

TEST(TextGrams, AreThePiecesOfThreeBytesEachOnceAndSorted) {
  const std::uint32_t begin = ' ' << 16 | 'a' << 8 | 'a';
  const std::uint32_t middle = 'a' << 16 | 'a' << 8 | 'a';
  const std::uint32_t end = 'a' << 16 | 'a' << 8 | ' ';
  EXPECT_EQ(gramsOf("aaaa"), (std::vector<std::uint32_t>{begin, end, middle}));
}

TEST(TextGrams, AreNoneForWhatHasNoWord) {
  EXPECT_TRUE(gramsOf("").empty());
  EXPECT_TRUE(gramsOf(" \n\t ").empty());
  EXPECT_EQ(gramsOf("a").size(), 1U);
}

TEST(TextGrams, DoNotMindCaseAndTheWidthOfGaps) {
  EXPECT_EQ(gramsOf("Open the Ärmel"), gramsOf("  open\n\tTHE  ärmel "));
  EXPECT_NE(gramsOf("openthe"), gramsOf("open the"));
}

TEST(TextGrams, AreAllAlikeOrNotAtAll) {
  EXPECT_EQ(likenessOf("Open", "open"), 1);
  EXPECT_EQ(likenessOf("Open", "Quit"), 0);
  EXPECT_EQ(likenessOf("", ""), 0);
  EXPECT_EQ(likenessOf("", "Open"), 0);
}

TEST(TextGrams, AreMoreAlikeTheMoreIsTheSame) {
  const double far = likenessOf("Open the file", "Close the window");
  const double near = likenessOf("Open the file", "Open the files");
  EXPECT_GT(near, far);
  EXPECT_LT(near, 1);
  EXPECT_DOUBLE_EQ(near, likenessOf("Open the files", "Open the file"));
}

}  // namespace
}  // namespace glossmill
