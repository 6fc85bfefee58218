#include <gtest/gtest.h>

#include "text/TextDifference.h"

namespace glossmill {
namespace {

TEST(TextDifference, IsWhatStandsBetweenTheSameBeginningAndEnd) {
  EXPECT_EQ(differenceOf("the red boat", "the blue boat"), (TextDifference{4, 7, 8}));
  EXPECT_EQ(differenceOf("", "new"), (TextDifference{0, 0, 3}));
  EXPECT_EQ(differenceOf("aaa", "aa"), (TextDifference{2, 3, 2}));
  EXPECT_EQ(differenceOf("same", "same"), (TextDifference{4, 4, 4}));
}

TEST(TextDifference, CutsNoCharacter) {
  EXPECT_EQ(differenceOf("ä", "ö"), (TextDifference{0, 2, 2}));
  EXPECT_EQ(differenceOf("xä", "xĤ"), (TextDifference{1, 3, 3}));  // they end in the same byte
}

}  // namespace
}  // namespace glossmill
