#include <gtest/gtest.h>

#include "xcode/LineCounter.h"

namespace glossmill {
namespace {

TEST(LineCounter, CountsEveryKindOfLineEndOnce) {
  const std::string_view text = "a\nb\r\nc\rd";
  LineCounter lines(text);
  EXPECT_EQ(lines.lineOf(0), 1u);
  EXPECT_EQ(lines.lineOf(1), 1u) << "the line end belongs to the line that it ends";
  EXPECT_EQ(lines.lineOf(2), 2u);
  EXPECT_EQ(lines.lineOf(5), 3u);
  EXPECT_EQ(lines.lineOf(5), 3u);
  EXPECT_EQ(lines.lineOf(text.size()), 4u);
}

}  // namespace
}  // namespace glossmill
