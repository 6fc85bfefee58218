#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "text/Utf8.h"

namespace glossmill {
namespace {

std::string utf8Of(char32_t codePoint) {
  std::string text;
  appendUtf8(text, codePoint);
  return text;
}

/// The outermost code points that take two, three and four bytes, and those next to the surrogates.
constexpr std::u32string_view kSeveralByteBoundaries = U"\x80\x7FF\x800\xD7FF\xE000\xFFFF\x10000\x10FFFF";

bool isSurrogate(char32_t codePoint) {
  return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

TEST(AppendUtf8, ChangesItsLengthAtTheBoundaries) {
  EXPECT_EQ(utf8Of(0), std::string(1, '\0'));
  EXPECT_EQ(utf8Of(0x7F), "\x7F");
  EXPECT_EQ(utf8Of(0x80), "\xC2\x80");
  EXPECT_EQ(utf8Of(0x7FF), "\xDF\xBF");
  EXPECT_EQ(utf8Of(0x800), "\xE0\xA0\x80");
  EXPECT_EQ(utf8Of(0xFFFF), "\xEF\xBF\xBF");
  EXPECT_EQ(utf8Of(0x10000), "\xF0\x90\x80\x80");
  EXPECT_EQ(utf8Of(0x10FFFF), "\xF4\x8F\xBF\xBF");
}

TEST(AppendUtf8, AppendsToWhatIsThere) {
  std::string text = "a";
  appendUtf8(text, 0x20AC);
  EXPECT_EQ(text, "a\xE2\x82\xAC");
}

TEST(AppendUtf8, EncodesALoneSurrogateInThreeBytes) {
  EXPECT_EQ(utf8Of(0xD800), "\xED\xA0\x80");
}

TEST(TakeCodePoint, ReadsBackEveryCodePoint) {
  for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
    if (isSurrogate(codePoint)) continue;
    const std::string text = utf8Of(codePoint) + "x";
    std::string_view rest = text;
    ASSERT_EQ(takeCodePoint(rest), codePoint);
    ASSERT_EQ(rest, "x");
  }
}

TEST(ValidUtf8, HoldsEveryCodePointButSurrogates) {
  for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
    ASSERT_EQ(isValidUtf8(utf8Of(codePoint)), !isSurrogate(codePoint)) << static_cast<unsigned>(codePoint);
  }
}

TEST(ValidUtf8, HoldsTheEmptyText) {
  EXPECT_TRUE(isValidUtf8(""));
}

struct MalformedCase {
  const char* what;
  std::string bytes;
};

const std::vector<MalformedCase>& malformedCases() {
  static const std::vector<MalformedCase> cases = {
      {"a continuation byte alone, lowest", "\x80"},
      {"a continuation byte alone, highest", "\xBF"},
      {"overlong, two bytes, lowest", "\xC0\x80"},
      {"overlong, two bytes, highest", "\xC1\xBF"},
      {"overlong, three bytes, lowest", "\xE0\x80\x80"},
      {"overlong, three bytes, highest", "\xE0\x9F\xBF"},
      {"overlong, four bytes, lowest", "\xF0\x80\x80\x80"},
      {"overlong, four bytes, highest", "\xF0\x8F\xBF\xBF"},
      {"the first surrogate", "\xED\xA0\x80"},
      {"the last high surrogate", "\xED\xAF\xBF"},
      {"the first low surrogate", "\xED\xB0\x80"},
      {"the last surrogate", "\xED\xBF\xBF"},
      {"a surrogate pair in six bytes", "\xED\xA0\xBD\xED\xBA\xA2"},
      {"just above U+10FFFF", "\xF4\x90\x80\x80"},
      {"far above U+10FFFF", "\xF7\xBF\xBF\xBF"},
      {"a lead byte beyond the last", "\xF5\x80\x80\x80"},
      {"a sequence of five bytes", "\xF8\x88\x80\x80\x80"},
      {"a sequence of six bytes", "\xFC\x84\x80\x80\x80\x80"},
      {"the byte FE", "\xFE"},
      {"the byte FF", "\xFF"},
      {"two bytes, second is ASCII", "\xC3z"},
      {"two bytes, second is a lead byte", "\xC3\xC3"},
      {"three bytes, third is ASCII", "\xE2\x82z"},
      {"three bytes, third is a lead byte", "\xE2\x82\xC3"},
      {"four bytes, third is ASCII", "\xF0\x9Fzz"},
      {"four bytes, fourth is ASCII", "\xF0\x9F\x9Az"},
      {"four bytes, fourth is a lead byte", "\xF0\x9F\x9A\xF0"},
  };
  return cases;
}

TEST(ValidUtf8, RejectsEveryMalformedSequence) {
  for (const MalformedCase& malformed : malformedCases()) {
    EXPECT_FALSE(isValidUtf8(malformed.bytes)) << malformed.what;
    EXPECT_EQ(validUtf8Prefix(malformed.bytes), 0U) << malformed.what;
  }
}

TEST(ValidUtf8, EndsBeforeAMalformedSequenceAtEveryPlace) {
  for (const MalformedCase& malformed : malformedCases()) {
    for (std::size_t place = 0; place <= 70; ++place) {
      const std::string ascii(place, 'a');
      EXPECT_EQ(validUtf8Prefix(ascii + malformed.bytes + ascii), place) << malformed.what;
    }
    EXPECT_EQ(validUtf8Prefix("\xC3\xA4\xE2\x82\xAC" + malformed.bytes), 5U) << malformed.what;
  }
}

TEST(ValidUtf8, PassesSequencesAmongAsciiAtEveryPlace) {
  for (std::size_t place = 0; place <= 70; ++place) {
    const std::string ascii(place, 'a');
    for (const char32_t codePoint : std::u32string_view(U"ä€\U0001F6A2")) {
      const std::string text = ascii + utf8Of(codePoint) + ascii + utf8Of(codePoint);
      EXPECT_EQ(validUtf8Prefix(text), text.size());
    }
  }
}

/// The rules as a table: what each lead byte allows its second byte to be; further bytes are 80 to BF.
std::size_t plainSequenceLength(std::string_view text) {
  const auto byte = [&](std::size_t at) { return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U; };
  const auto within = [](unsigned value, unsigned low, unsigned high) { return value >= low && value <= high; };
  const auto further = [&](std::size_t at) { return within(byte(at), 0x80, 0xBF); };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  if (within(lead, 0xC2, 0xDF)) return further(1) ? 2 : 0;
  const unsigned low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const unsigned high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  if (!within(byte(1), low, high) || !further(2)) return 0;
  if (within(lead, 0xE0, 0xEF)) return 3;
  return within(lead, 0xF0, 0xF4) && further(3) ? 4 : 0;
}

std::size_t plainPrefix(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t length = plainSequenceLength(text.substr(at));
    if (length == 0) break;
    at += length;
  }
  return at;
}

TEST(ValidUtf8, AgreesWithThePlainRulesOnDenseText) {
  const std::vector<std::string> parts = {"a",
                                          "bc",
                                          "\xC3\xA4",
                                          "\xDF\xBF",
                                          "\xE0\xA4\x95",
                                          "\xE2\x82\xAC",
                                          "\xED\x9F\xBF",
                                          "\xEE\x80\x80",
                                          "\xF0\x9F\x9A\xA2"};
  std::mt19937 random(20240930);
  const auto below = [&random](std::size_t count) { return random() % count; };
  for (int round = 0; round < 20'000; ++round) {
    const std::size_t kinds = 1 + below(parts.size());
    std::string text(below(17), 'x');
    for (std::size_t part = below(60); part > 0; --part) text += parts[below(kinds)];
    for (std::size_t damage = below(3); damage > 0 && !text.empty(); --damage) {
      text[below(text.size())] = static_cast<char>(below(256));
    }
    ASSERT_EQ(validUtf8Prefix(text), plainPrefix(text)) << testing::PrintToString(text);
  }
}

TEST(ValidUtf8, LeavesOutASequenceCutOffByTheEnd) {
  for (const char32_t codePoint : kSeveralByteBoundaries) {
    const std::string whole = utf8Of(codePoint);
    for (std::size_t length = 1; length < whole.size(); ++length) {
      EXPECT_EQ(validUtf8Prefix("ab" + whole.substr(0, length)), 2U);
    }
  }
}

TEST(AsciiPrefix, EndsBeforeTheFirstByteThatIsNotAscii) {
  EXPECT_EQ(asciiPrefix(""), 0U);
  for (std::size_t place = 0; place < 40; ++place) {
    const std::string ascii(place, '\x7F');
    EXPECT_EQ(asciiPrefix(ascii), place);
    EXPECT_EQ(asciiPrefix(ascii + "\x80" + std::string(20, 'a')), place);
  }
}

TEST(CutUtf8Sequence, IsEveryBeginningOfASequence) {
  for (const char32_t codePoint : kSeveralByteBoundaries) {
    const std::string whole = utf8Of(codePoint);
    for (std::size_t length = 1; length < whole.size(); ++length) {
      EXPECT_TRUE(isCutUtf8Sequence(whole.substr(0, length))) << static_cast<unsigned>(codePoint);
    }
  }
}

TEST(CutUtf8Sequence, IsNeitherEmptyNorAsciiNorWhole) {
  EXPECT_FALSE(isCutUtf8Sequence(""));
  EXPECT_FALSE(isCutUtf8Sequence("a"));
  EXPECT_FALSE(isCutUtf8Sequence("\xC3\xA4"));
  EXPECT_FALSE(isCutUtf8Sequence("\xE2\x82\xAC"));
  EXPECT_FALSE(isCutUtf8Sequence("\xF0\x9F\x9A\xA2"));
}

TEST(CutUtf8Sequence, IsNotTheBeginningOfAMalformedOne) {
  for (const char* bytes : {"\x80", "\xC0", "\xC1", "\xE0\x9F", "\xED\xA0", "\xF0\x8F", "\xF4\x90", "\xF5", "\xFF",
                            "\xE2z", "\xF0\x9Fz", "\xE2\x82\xAC\xE2"}) {
    EXPECT_FALSE(isCutUtf8Sequence(bytes)) << bytes;
  }
}

}  // namespace
}  // namespace glossmill
