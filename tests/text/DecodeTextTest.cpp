#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "text/EncodedText.h"
#include "text/TextDecoder.h"

namespace glossmill {
namespace {

void expectDecoded(std::string_view bytes, std::string_view expected) {
  const Result<std::string> text = decodeText(bytes);
  ASSERT_TRUE(text.ok()) << text.error().sentence;
  EXPECT_EQ(text.value(), expected);
}

void expectError(std::string_view bytes, std::string_view sentence) {
  const Result<std::string> text = decodeText(bytes);
  ASSERT_FALSE(text.ok()) << "decoded as " << text.value();
  EXPECT_EQ(text.error().sentence, sentence);
}

TEST(DecodeText, GivesTheEmptyTextForNoBytes) {
  expectDecoded("", "");
}

TEST(DecodeText, GivesTheEmptyTextForAMarkAlone) {
  for (const TextEncoding encoding : kAllEncodings) expectDecoded(withMark(U"", encoding), "");
}

TEST(DecodeText, ReadsEveryEncodingWithItsMark) {
  const std::u32string text = U"\"Liegeplatz\" = \"Größe € 泊 \U0001F6A2\";\r\n";
  for (const TextEncoding encoding : kAllEncodings) expectDecoded(withMark(text, encoding), utf8(text));
}

TEST(DecodeText, ReadsUtf8AndUtf16WithoutAMark) {
  const std::u32string text = U"\"Liegeplatz\" = \"Größe € 泊 \U0001F6A2\";\r\n";
  expectDecoded(encode(text, TextEncoding::Utf8), utf8(text));
  for (const TextEncoding encoding : kUtf16Encodings) expectDecoded(encode(text, encoding), utf8(text));
}

TEST(DecodeText, ReadsTheOutermostCodePointsOfEveryLength) {
  const std::u32string text = U"\x01\x7F\x80\x7FF\x800\xD7FF\xE000\xFFFD\xFFFF\x10000\x10FFFF";
  for (const TextEncoding encoding : kAllEncodings) expectDecoded(withMark(text, encoding), utf8(text));
}

TEST(DecodeText, ReadsEveryCodePointAsUtf16) {
  std::u32string text;
  for (char32_t codePoint = 1; codePoint <= 0x10FFFF; ++codePoint) {
    if (codePoint < 0xD800 || codePoint > 0xDFFF) text.push_back(codePoint);
  }
  const std::string expected = utf8(text);
  for (const TextEncoding encoding : kUtf16Encodings) {
    const Result<std::string> decoded = decodeText(withMark(text, encoding));
    ASSERT_TRUE(decoded.ok());
    EXPECT_TRUE(decoded.value() == expected);
  }
}

TEST(DecodeText, KeepsAMarkThatIsNotAtTheBeginning) {
  for (const TextEncoding encoding : kAllEncodings)
    expectDecoded(withMark(U"a\uFEFFb", encoding),
                  "a\xEF\xBB\xBF"
                  "b");
}

TEST(DecodeText, KeepsZeroCharactersAfterAMark) {
  const std::u32string text(U"a\0b", 3);
  for (const TextEncoding encoding : kAllEncodings) expectDecoded(withMark(text, encoding), utf8(text));
}

TEST(DecodeText, FindsOneStrangeUnitAtEveryPlaceAmongAscii) {
  for (const char32_t strange : {char32_t{0x80}, char32_t{0x100}, char32_t{0x4E00}, char32_t{0x1F6A2}}) {
    for (std::size_t place = 0; place <= 40; ++place) {
      const std::u32string text = std::u32string(place, U'a') + strange + std::u32string(40 - place, U'b');
      for (const TextEncoding encoding : kUtf16Encodings) expectDecoded(withMark(text, encoding), utf8(text));
    }
  }
}

TEST(DecodeText, RefusesMalformedUtf8WithASentence) {
  for (const char* bytes :
       {"\x80", "a\xC3", "\xC3z", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF",
        "Gr\xF6\xDF"
        "e",
        "\xEF\xBB", "\xEF\xBB\xBF\x80", "\xF0\x9F\x9A"}) {
    expectError(bytes, kUtf8Sentence);
  }
}

TEST(DecodeText, RefusesUtf16WithAnOddNumberOfBytes) {
  for (const TextEncoding encoding : kUtf16Encodings) {
    expectError(withMark(U"ab", encoding) + "c", kUtf16Sentence);
    expectError(encode(U"ab", encoding) + "c", kUtf16Sentence);
    expectError(withMark(U"", encoding) + "c", kUtf16Sentence);
  }
}

TEST(DecodeText, RefusesLoneSurrogatesInUtf16) {
  for (const TextEncoding encoding : kUtf16Encodings) {
    for (const char32_t surrogate : {char32_t{0xD800}, char32_t{0xDBFF}, char32_t{0xDC00}, char32_t{0xDFFF}}) {
      const std::u32string lone(1, surrogate);
      expectError(withMark(lone, encoding), kUtf16Sentence);
      expectError(withMark(lone + U"a", encoding), kUtf16Sentence);
      expectError(withMark(lone + U"\uE000", encoding), kUtf16Sentence);
      expectError(withMark(U"a" + lone, encoding), kUtf16Sentence);
      expectError(withMark(lone + std::u32string(40, U'a'), encoding), kUtf16Sentence);
      expectError(withMark(std::u32string(40, U'a') + lone, encoding), kUtf16Sentence);
    }
  }
}

TEST(DecodeText, RefusesAPairThatIsPulledApart) {
  for (const TextEncoding encoding : kUtf16Encodings) {
    for (std::size_t before = 0; before < 20; ++before) {
      for (std::size_t between = 1; between < 40; ++between) {
        const std::u32string apart = U'\xD83D' + std::u32string(between, U'a') + U'\xDEA2';
        expectError(withMark(std::u32string(before, U'a') + apart, encoding), kUtf16Sentence);
      }
    }
  }
}

TEST(DecodeText, RefusesSurrogatesInTheWrongOrder) {
  for (const TextEncoding encoding : kUtf16Encodings) {
    expectError(withMark({0xD83D, 0xD83D, 0xDEA2}, encoding), kUtf16Sentence);
    expectError(withMark({0xDEA2, 0xD83D}, encoding), kUtf16Sentence);
    expectError(withMark({0xD83D, 0xDEA2, 0xDEA2}, encoding), kUtf16Sentence);
  }
}

TEST(DecodeText, RefusesMalformedUtf32) {
  for (const TextEncoding encoding : kUtf32Encodings) {
    for (const char32_t wrong : {char32_t{0xD800}, char32_t{0xDBFF}, char32_t{0xDC00}, char32_t{0xDFFF},
                                 char32_t{0x110000}, char32_t{0xFFFFFFFF}}) {
      expectError(withMark({U'a', wrong, U'b'}, encoding), kUtf32Sentence);
    }
  }
}

TEST(DecodeText, RefusesUtf32WithAnUnfinishedUnit) {
  for (const TextEncoding encoding : kUtf32Encodings) {
    for (std::size_t length = 1; length <= 3; ++length) {
      expectError(withMark(U"a", encoding) + std::string(length, '\0'), kUtf32Sentence);
    }
  }
}

}  // namespace
}  // namespace glossmill
