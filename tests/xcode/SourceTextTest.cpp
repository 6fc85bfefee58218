#include <gtest/gtest.h>

#include <string>

#include "xcode/SourceText.h"

namespace glossmill {
namespace {

TEST(SourceText, KnowsTheBytesOfWords) {
  for (const char byte : std::string("azAZ09_$\xC3\xFF")) EXPECT_TRUE(isWordByte(byte)) << byte;
  for (const char byte : std::string(" @[`{/:-\n\"\x7F") + '\0') EXPECT_FALSE(isWordByte(byte)) << byte;
}

TEST(SourceText, MeasuresLineContinuations) {
  EXPECT_EQ(continuationLength("\\\na", 0), 2U);
  EXPECT_EQ(continuationLength("\\\r\na", 0), 3U);
  EXPECT_EQ(continuationLength("\\ \t\ra", 0), 4U);
  EXPECT_EQ(continuationLength("\\a\n", 0), 0U);
  EXPECT_EQ(continuationLength("\\", 0), 0U);
  EXPECT_EQ(continuationLength("a", 1), 0U);
}

TEST(SourceText, PassesContinuationsInBothDirections) {
  const std::string text = "a\\\n\\ \r\nb";
  EXPECT_EQ(afterContinuations(text, 1), text.size() - 1);
  EXPECT_EQ(beforeContinuations(text, text.size() - 1, 0), 1U);
  EXPECT_EQ(beforeContinuations(text, text.size() - 1, 3), 3U);
  EXPECT_EQ(beforeContinuations(text, text.size() - 1, 4), text.size() - 1);
  EXPECT_EQ(beforeContinuations("a\nb", 2, 0), 2U);
}

TEST(SourceText, TakesContinuationsOut) {
  EXPECT_EQ(withoutContinuations("a\\\nb\\n\\\\\n\\"), "ab\\n\\\\");
  EXPECT_EQ(withoutContinuations(""), "");
}

}  // namespace
}  // namespace glossmill
