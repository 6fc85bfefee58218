#include <gtest/gtest.h>

#include "xcode/SyntaxError.h"

namespace glossmill {
namespace {

TEST(SyntaxError, LinesEndInThreeWays) {
  const std::string_view text = "a\nb\rc\r\nd";
  EXPECT_EQ(placeOf(text, 0), (TextPlace{1, 1}));
  EXPECT_EQ(placeOf(text, 1), (TextPlace{1, 2}));
  EXPECT_EQ(placeOf(text, 2), (TextPlace{2, 1}));
  EXPECT_EQ(placeOf(text, 4), (TextPlace{3, 1}));
  EXPECT_EQ(placeOf(text, 6), (TextPlace{3, 3}));
  EXPECT_EQ(placeOf(text, 7), (TextPlace{4, 1}));
  EXPECT_EQ(placeOf(text, 8), (TextPlace{4, 2}));
  EXPECT_EQ(placeOf("", 0), (TextPlace{1, 1}));
  EXPECT_EQ(placeOf("\n", 1), (TextPlace{2, 1}));
}

TEST(SyntaxError, ColumnsCountUtf16Units) {
  EXPECT_EQ(placeOf("\nä€🚢x", 1 + 2 + 3 + 4), (TextPlace{2, 5}));
}

}  // namespace
}  // namespace glossmill
