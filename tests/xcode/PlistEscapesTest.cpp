#include <gtest/gtest.h>

#include "text/Utf8.h"
#include "xcode/PlistEscapes.h"
#include "xcode/PlistWords.h"

namespace glossmill {
namespace {

TEST(PlistEscapes, LettersHaveMeanings) {
  EXPECT_EQ(unescapePlist(R"(\a\b\f\n\r\t\v)"), "\a\b\f\n\r\t\v");
}

TEST(PlistEscapes, ABackslashInFrontOfAnythingElseIsThatCharacter) {
  EXPECT_EQ(unescapePlist(R"(\"\'\\\q\8\ä\🚢)"), "\"'\\q8ä🚢");
  EXPECT_EQ(unescapePlist("a\\\nb"), "a\nb");
}

TEST(PlistEscapes, OctalNumbersAreOfNextStepsEncoding) {
  EXPECT_EQ(unescapePlist(R"(\101\60\331)"), "A0ä");
  EXPECT_EQ(unescapePlist(R"(\1011)"), "A1");
  EXPECT_EQ(unescapePlist(R"(\18)"),
            "\x01"
            "8");
  EXPECT_EQ(unescapePlist(R"(\501)"), "A");
  EXPECT_EQ(unescapePlist(R"(\377)"), "\uFFFD");
}

TEST(PlistEscapes, UnitsHaveUpToFourDigits) {
  EXPECT_EQ(unescapePlist(R"(\U00e4\Ue4\U20AC1\U41 )"), "ää€1A ");
  EXPECT_EQ(unescapePlist(R"(\U)"), std::string(1, '\0'));
}

TEST(PlistEscapes, TwoHalvesMakeACharacter) {
  EXPECT_EQ(unescapePlist(R"(\Ud83d\Udea2)"), "🚢");
}

TEST(PlistEscapes, AHalfAloneIsNoCharacter) {
  EXPECT_EQ(unescapePlist(R"(\Ud83d)"), "\uFFFD");
  EXPECT_EQ(unescapePlist(R"(\Ud83da\Udea2)"), "\uFFFDa\uFFFD");
  EXPECT_EQ(unescapePlist(R"(\Ud83d\n\Udea2)"), "\uFFFD\n\uFFFD");
  EXPECT_EQ(unescapePlist(R"(\Ud83d\Ud83d\Udea2)"), "\uFFFD🚢");
}

TEST(PlistEscapes, WhatIsWrittenStaysOnItsLineAndShowsItsControls) {
  EXPECT_EQ(escapePlist("\"a\"\\\n\r\t\v\f\b\a", '"'), R"(\"a\"\\\n\r\t\v\f\b\a)");
  EXPECT_EQ(escapePlist("\x01\x7F\u0085\u2028", '"'), R"(\U0001\U007f\U0085\U2028)");
  EXPECT_EQ(escapePlist("ä€🚢 'x'", '"'), "ä€🚢 'x'");
  EXPECT_EQ(escapePlist("\"it's\"", '\''), R"("it\'s")");
}

/// Next to itself and a digit, which an escape must not take along.
void expectReadAsWritten(char32_t character, char quote) {
  std::string value;
  for (const char32_t next : {character, U'1', character}) appendUtf8(value, next);
  const std::string text = quote + escapePlist(value, quote) + quote;
  const PlistWord word = plistWordAt(text, 0);
  ASSERT_EQ(word.after, text.size()) << std::hex << static_cast<std::uint32_t>(character);
  ASSERT_EQ(unescapePlist(word.in(text)), value) << std::hex << static_cast<std::uint32_t>(character);
  ASSERT_EQ(word.hasEscapes, word.in(text) != value);
}

TEST(PlistEscapes, EveryCharacterIsReadAsItWasWritten) {
  for (char32_t character = 0; character <= 0x10FFFF && !HasFatalFailure(); ++character) {
    if (character == 0xD800) character = 0xE000;
    expectReadAsWritten(character, '"');
    if (character < 0x100) expectReadAsWritten(character, '\'');
  }
}

}  // namespace
}  // namespace glossmill
