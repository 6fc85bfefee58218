#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "text/EncodedText.h"
#include "text/TextDecoder.h"
#include "text/Utf8.h"

namespace glossmill {
namespace {

/// What comes out of `pieces`, or the error's sentence after "error: ". Checks that no delivered piece is cut.
std::string decodePieces(const std::vector<std::string_view>& pieces) {
  TextDecoder decoder;
  std::string text;
  const TextDecoder::Sink sink = [&text](std::string_view piece) {
    EXPECT_FALSE(piece.empty());
    EXPECT_TRUE(isValidUtf8(piece));
    text.append(piece);
  };
  for (const std::string_view piece : pieces) {
    const Outcome outcome = decoder.feed(piece, sink);
    if (!outcome) return "error: " + outcome.error().sentence;
  }
  const Outcome outcome = decoder.finish();
  return outcome ? text : "error: " + outcome.error().sentence;
}

/// Every way to cut what follows the first `firstLength` bytes, which stay in one piece.
template <typename Check>
void forEverySplit(std::string_view bytes, std::size_t firstLength, Check check) {
  const std::size_t places = bytes.size() - firstLength;
  for (unsigned cuts = 0; cuts < 1U << places; ++cuts) {
    std::vector<std::string_view> pieces;
    std::size_t start = 0;
    for (std::size_t at = 0; at < places; ++at) {
      if ((cuts >> at & 1U) == 0) continue;
      pieces.push_back(bytes.substr(start, firstLength + at - start));
      start = firstLength + at;
    }
    pieces.push_back(bytes.substr(start));
    check(pieces);
    if (testing::Test::HasFailure()) return;
  }
}

TEST(TextDecoder, GivesTheSameInEverySplitAfterTheMark) {
  const std::vector<std::pair<TextEncoding, std::u32string>> texts = {
      {TextEncoding::Utf8, U"aä€\U0001F6A2b\n"},          {TextEncoding::Utf16LittleEndian, U"a\U0001F6A2€ä\n"},
      {TextEncoding::Utf16BigEndian, U"a\U0001F6A2€ä\n"}, {TextEncoding::Utf32LittleEndian, U"a\U0001F6A2€"},
      {TextEncoding::Utf32BigEndian, U"a\U0001F6A2€"},
  };
  for (const auto& [encoding, text] : texts) {
    const std::string bytes = withMark(text, encoding);
    const std::string expected = utf8(text);
    forEverySplit(bytes, encode(U"\uFEFF", encoding).size(),
                  [&](const std::vector<std::string_view>& pieces) { EXPECT_EQ(decodePieces(pieces), expected); });
  }
}

TEST(TextDecoder, GivesTheSameInEverySplitOfUtf8WithoutAMark) {
  const std::string expected = "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x9A\xA2\n";
  forEverySplit(expected, 1,
                [&](const std::vector<std::string_view>& pieces) { EXPECT_EQ(decodePieces(pieces), expected); });
}

TEST(TextDecoder, GivesTheSameInEverySplitAfterTheFirstUnitOfUtf16WithoutAMark) {
  for (const TextEncoding encoding : kUtf16Encodings) {
    forEverySplit(encode(U"a\U0001F6A2€ä\n", encoding), 2, [&](const std::vector<std::string_view>& pieces) {
      EXPECT_EQ(decodePieces(pieces), "a\xF0\x9F\x9A\xA2\xE2\x82\xAC\xC3\xA4\n");
    });
  }
}

TEST(TextDecoder, RefusesMalformedInputInEverySplit) {
  struct Case {
    std::string bytes;
    std::size_t markLength;
    std::string_view sentence;
  };
  const std::vector<Case> cases = {
      {"a\xE2\x82z", 1, kUtf8Sentence},
      {"a\xF0\x9F\x9A\xC3\xA4", 1, kUtf8Sentence},
      {"a\xED\xA0\x80", 1, kUtf8Sentence},
      {"a\xF0\x9F\x9A", 1, kUtf8Sentence},
      {withMark({0xD83D, U'a'}, TextEncoding::Utf16LittleEndian), 2, kUtf16Sentence},
      {withMark({U'a', 0xD83D}, TextEncoding::Utf16BigEndian), 2, kUtf16Sentence},
      {withMark({0xDEA2, U'a'}, TextEncoding::Utf16BigEndian), 2, kUtf16Sentence},
      {withMark(U"a", TextEncoding::Utf16LittleEndian) + "b", 2, kUtf16Sentence},
      {withMark({U'a', 0x110000}, TextEncoding::Utf32BigEndian), 4, kUtf32Sentence},
      {withMark({0xD83D, U'a'}, TextEncoding::Utf32LittleEndian), 4, kUtf32Sentence},
      {withMark(U"a", TextEncoding::Utf32LittleEndian) + "b", 4, kUtf32Sentence},
  };
  for (const Case& malformed : cases) {
    forEverySplit(malformed.bytes, malformed.markLength, [&](const std::vector<std::string_view>& pieces) {
      EXPECT_EQ(decodePieces(pieces), "error: " + std::string(malformed.sentence));
    });
  }
}

TEST(TextDecoder, WaitsForTheFirstBytesBeforeItDecides) {
  const std::string bytes = withMark(U"ab", TextEncoding::Utf16BigEndian);
  EXPECT_EQ(decodePieces({"", bytes, ""}), "ab");
}

TEST(TextDecoder, TakesNoSecondMarkFromALaterPiece) {
  EXPECT_EQ(decodePieces({"\xEF\xBB\xBF",
                          "\xEF\xBB\xBF"
                          "a"}),
            "\xEF\xBB\xBF"
            "a");
}

TEST(TextDecoder, GivesNothingWhenNothingWasFed) {
  EXPECT_EQ(decodePieces({}), "");
  EXPECT_EQ(decodePieces({"", ""}), "");
}

}  // namespace
}  // namespace glossmill
