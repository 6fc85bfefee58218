#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>

#include "text/PrintableText.h"
#include "text/Utf8.h"

namespace glossmill {
namespace {

std::string printableText(std::string_view text) {
  std::string printable;
  appendPrintableText(printable, text);
  return printable;
}

/// The same, one character after the other.
std::string plainlyPrintable(std::string_view text) {
  std::string printable;
  while (!text.empty()) {
    if (validUtf8Prefix(text) == 0) {
      printable += kReplacementCharacter;
      text.remove_prefix(1);
      continue;
    }
    const std::string_view before = text;
    const char32_t codePoint = takeCodePoint(text);
    if ((codePoint >= 0x202A && codePoint <= 0x202E) || (codePoint >= 0x2066 && codePoint <= 0x2069)) {
      char code[16];
      std::snprintf(code, sizeof code, "<U+%X>", static_cast<unsigned>(codePoint));
      printable += code;
      continue;
    }
    const bool isControl = codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0);
    const bool stays = !isControl || codePoint == '\n' || codePoint == '\t';
    printable += stays ? before.substr(0, before.size() - text.size()) : kReplacementCharacter;
  }
  return printable;
}

TEST(PrintableText, KeepsWhatDoesNoHarm) {
  EXPECT_EQ(printableText(""), "");
  EXPECT_EQ(printableText("Größe: 日本語\n\t\xC2\xA0 \xF0\x9F\x9A\xA2"), "Größe: 日本語\n\t\xC2\xA0 \xF0\x9F\x9A\xA2");
}

TEST(PrintableText, ReplacesControlCharacters) {
  EXPECT_EQ(printableText("a\x1B[31mb\x7F\r"), "a\xEF\xBF\xBD[31mb\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(printableText("a\xC2\x80\xC2\x9F\xC2\xA0"), "a\xEF\xBF\xBD\xEF\xBF\xBD\xC2\xA0");
}

TEST(PrintableText, ShowsTheCodesOfWhatTurnsTheDirectionOfText) {
  EXPECT_EQ(printableText("a\u202Eb\u2066c"), "a<U+202E>b<U+2066>c");
  EXPECT_EQ(printableText("\u2029\u202A\u202F\u2065\u2069\u206A"), "\u2029<U+202A>\u202F\u2065<U+2069>\u206A");
  EXPECT_EQ(printableText("a text of sixteen \u2019 \u200F bytes"), "a text of sixteen \u2019 \u200F bytes");
}

TEST(PrintableText, ReplacesBytesThatAreNoCharacter) {
  EXPECT_EQ(printableText("\xFF"
                          "a\xC3"),
            "\xEF\xBF\xBD"
            "a\xEF\xBF\xBD");
}

TEST(PrintableText, IsAddedBehindWhatIsThere) {
  std::string text = "system log: ";
  appendPrintableText(text, "Lines: 12");
  EXPECT_EQ(text, "system log: Lines: 12");
}

TEST(PrintableText, OfALineHoldsNoLineFeedAndNoTab) {
  EXPECT_EQ(printableLine("a\nb\tc"),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD"
            "c");
}

TEST(PrintableText, IsTheSameAsCharacterByCharacter) {
  std::mt19937 random(7);
  const std::string_view pieces[] = {"a plain text of words ",
                                     "ü",
                                     "日",
                                     "\xF0\x9F\x9A\xA2",
                                     "\xC2\x85",
                                     "\xC2\xA9",
                                     "\x7F",
                                     "\n",
                                     "\x1B",
                                     "\xC2",
                                     "\xFF",
                                     "\xE6\x97",
                                     "\u202A",
                                     "\u2069",
                                     "\u2029\u2065"};
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    for (std::size_t left = random() % 12; left > 0; --left) text += pieces[random() % std::size(pieces)];
    ASSERT_EQ(printableText(text), plainlyPrintable(text)) << round;
  }
}

}  // namespace
}  // namespace glossmill
