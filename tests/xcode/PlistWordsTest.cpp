#include <gtest/gtest.h>

#include "xcode/PlistWords.h"

namespace glossmill {
namespace {

TEST(PlistWords, WhiteSpaceIsOfManyKinds) {
  const std::string_view space = " \t\n\v\f\r\u2028\u2029";
  EXPECT_EQ(skipPlistSpace(space, 0), space.size());
  EXPECT_EQ(skipPlistSpace("\u2027", 0), 0U);
  EXPECT_EQ(skipPlistSpace("\u00A0", 0), 0U);
  EXPECT_EQ(skipPlistSpace(" \xE2\x80", 0), 1U);
  EXPECT_EQ(skipPlistSpace("", 0), 0U);
}

TEST(PlistWords, ALineCommentEndsInFrontOfItsLineEnd) {
  for (const std::string_view end : {"\n", "\r", "\r\n", "\u2028", "\u2029", ""}) {
    EXPECT_EQ(endOfPlistComment("//\u2027 a" + std::string(end), 0), 7U) << end;
  }
}

TEST(PlistWords, ABlockCommentEndsAtTheFirstStarAndSlash) {
  EXPECT_EQ(endOfPlistComment("/* a **/ */", 0), 8U);
  EXPECT_EQ(endOfPlistComment("/**/", 0), 4U);
  EXPECT_EQ(endOfPlistComment("x/* /* */", 1), 9U);
}

TEST(PlistWords, ABlockCommentMayLackItsEnd) {
  for (const std::string_view text : {"/*", "/* a", "/*/", "/* *"}) EXPECT_EQ(endOfPlistComment(text, 0), kNotClosed);
}

TEST(PlistWords, ASlashAloneIsNoComment) {
  for (const std::string_view text : {"/", "/a", "a//", ""}) EXPECT_EQ(endOfPlistComment(text, 0), 0U);
}

TEST(PlistWords, AGapEndsAtAWordOrAtACommentThatIsNotClosed) {
  EXPECT_EQ(skipPlistGap(" // a\n /* b */ /c", 0), 15U);
  EXPECT_EQ(skipPlistGap(" /* a", 0), 1U);
}

TEST(PlistWords, BareWordsHoldLettersDigitsAndAFewMarks) {
  const std::string_view all = "azAZ09_$./:-";
  const PlistWord word = plistWordAt(all, 0);
  EXPECT_EQ(word.kind, PlistWord::Kind::Bare);
  EXPECT_EQ(word.in(all), all);
  EXPECT_EQ(word.after, all.size());
  for (const std::string_view none : {"", "+", "@", "\xC3\xA4", ";", ",", "\\", "`", "[", "{"}) {
    EXPECT_EQ(plistWordAt(none, 0).kind, PlistWord::Kind::None) << none;
  }
}

TEST(PlistWords, AQuoteEndsATextUnlessABackslashStandsInFront) {
  const std::string_view text = R"("a'\"\\" b)";
  const PlistWord word = plistWordAt(text, 0);
  EXPECT_EQ(word.kind, PlistWord::Kind::Quoted);
  EXPECT_EQ(word.in(text), R"(a'\"\\)");
  EXPECT_EQ(word.after, 8U);
  EXPECT_TRUE(word.hasEscapes);
}

TEST(PlistWords, SingleQuotesDoAsWell) {
  const std::string_view text = R"('a"b')";
  const PlistWord word = plistWordAt(text, 0);
  EXPECT_EQ(word.in(text), "a\"b");
  EXPECT_FALSE(word.hasEscapes);
}

TEST(PlistWords, AQuoteMayLackItsPartner) {
  for (const std::string_view text : {"\"", "\"a", "\"a\\\"", "\"a\\", "'a\""}) {
    EXPECT_EQ(plistWordAt(text, 0).kind, PlistWord::Kind::NotClosed) << text;
  }
}

TEST(PlistWords, TellWhatNeedsNoQuotes) {
  EXPECT_TRUE(isBareWord("CFBundleName"));
  EXPECT_TRUE(isBareWord("a//b"));
  EXPECT_FALSE(isBareWord(""));
  EXPECT_FALSE(isBareWord("//a"));
  EXPECT_FALSE(isBareWord("two words"));
}

TEST(PlistWords, MarksInFrontArePassedOver) {
  EXPECT_EQ(behindMarks("\uFEFF\uFEFFa"), 6U);
  EXPECT_EQ(behindMarks("a\uFEFF"), 0U);
}

}  // namespace
}  // namespace glossmill
