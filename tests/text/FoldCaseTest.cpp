#include <gtest/gtest.h>

#include <string>

#include "text/FoldCase.h"
#include "text/Utf8.h"

namespace glossmill {
namespace {

std::string bytesOf(char32_t codePoint) {
  std::string text;
  appendUtf8(text, codePoint);
  return text;
}

TEST(FoldCase, TurnsAsciiCapitalsIntoSmallLettersAndLeavesTheirNeighbours) {
  EXPECT_EQ(foldCase("@AZ[`az{ 09"), "@az[`az{ 09");
  EXPECT_EQ(foldCase(""), "");
}

TEST(FoldCase, FoldsLettersWithAccentsWithinAWord) {
  EXPECT_EQ(foldCase("\u00C4RGER \u00C9t\u00C9 \u00DE"), "\u00E4rger \u00E9t\u00E9 \u00FE");
  EXPECT_EQ(foldCase("\u0100\u0139\u0141\u0178\u017D"), "\u0101\u013A\u0142\u00FF\u017E");
}

TEST(FoldCase, FoldsGreekAndCyrillicCapitals) {
  EXPECT_EQ(foldCase("\u0391\u03A9 \u0391\u03B2\u03A3"), "\u03B1\u03C9 \u03B1\u03B2\u03C3");
  EXPECT_EQ(foldCase("\u0401\u0410\u041F\u0420\u042F"), "\u0451\u0430\u043F\u0440\u044F");
}

TEST(FoldCase, LeavesSignsBetweenTheLettersAndSmallLetters) {
  for (const char* text : {"\u00D7\u00F7\u00DF", "\u0130\u0131\u0138\u0149\u017F", "\u03C2\u03C9", "\u0440\u0451"}) {
    EXPECT_EQ(foldCase(text), text);
  }
}

TEST(FoldCase, LeavesScriptsWithoutCapitals) {
  for (const char* text :
       {"\u0645\u0644\u0641", "\u05E7\u05D5\u05D1", "\u0E44\u0E1F\u0E25", "\u6587\u4EF6", "\U0001F600"}) {
    EXPECT_EQ(foldCase(text), text);
  }
  EXPECT_EQ(foldCase("A\u6587Z"), "a\u6587z");
}

TEST(FoldCase, GivesEveryCharacterOfTwoBytesBackInTwoBytesAndNeverFoldsTwice) {
  for (char32_t codePoint = 0x80; codePoint < 0x800; ++codePoint) {
    const std::string folded = foldCase(bytesOf(codePoint));
    ASSERT_EQ(folded.size(), 2U) << static_cast<unsigned>(codePoint);
    ASSERT_TRUE(isValidUtf8(folded)) << static_cast<unsigned>(codePoint);
    ASSERT_EQ(foldCase(folded), folded) << static_cast<unsigned>(codePoint);
  }
}

}  // namespace
}  // namespace glossmill
