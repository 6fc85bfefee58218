#include <gtest/gtest.h>

#include <string>

#include "text/GrowingText.h"

namespace glossmill {
namespace {

TEST(GrowingText, IsEmptyAtFirst) {
  const GrowingText text;
  EXPECT_EQ(text.view(), "");
  EXPECT_EQ(text.size(), 0U);
}

TEST(GrowingText, KeepsWhatWasAddedThroughManyMoves) {
  GrowingText text;
  std::string expected;
  for (int number = 0; number < 100'000; ++number) {
    text.append(std::to_string(number));
    text.append(" ");
    expected.append(std::to_string(number)).push_back(' ');
  }
  EXPECT_EQ(text.view(), expected);
}

TEST(GrowingText, TakesAPieceThatIsLongerThanAllBeforeIt) {
  GrowingText text;
  text.append("a");
  text.append(std::string(1'000'000, 'b'));
  text.append("c");
  EXPECT_EQ(text.view(), "a" + std::string(1'000'000, 'b') + "c");
}

TEST(GrowingText, TakesNothingAndZeroBytes) {
  GrowingText text;
  text.append("");
  text.append(std::string_view("a\0b", 3));
  EXPECT_EQ(text.view(), std::string_view("a\0b", 3));
}

TEST(GrowingText, StartsAnewWhenItIsCleared) {
  GrowingText text;
  text.append("first");
  text.clear();
  EXPECT_EQ(text.view(), "");
  text.append("second");
  EXPECT_EQ(text.view(), "second");
}

}  // namespace
}  // namespace glossmill
