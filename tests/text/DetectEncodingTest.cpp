#include <gtest/gtest.h>

#include <string>

#include "text/EncodedText.h"
#include "text/TextDecoder.h"

namespace glossmill {
namespace {

TEST(DetectEncoding, KnowsEveryByteOrderMark) {
  for (const TextEncoding encoding : kAllEncodings) {
    const std::string bytes = withMark(U"ab", encoding);
    const DetectedEncoding detected = detectEncoding(bytes);
    EXPECT_EQ(detected.encoding, encoding);
    EXPECT_EQ(detected.markLength, encode(U"\uFEFF", encoding).size());
  }
}

TEST(DetectEncoding, TakesAMarkAloneForItsEncoding) {
  for (const TextEncoding encoding : kAllEncodings) {
    EXPECT_EQ(detectEncoding(withMark(U"", encoding)).encoding, encoding);
  }
}

TEST(DetectEncoding, TakesTextWithoutZeroBytesForUtf8) {
  for (const char* bytes : {"", "a", "\"Open\" = \"Close\";\n", "\xC3\xA4", "\xFF", "\xEF\xBB"}) {
    EXPECT_EQ(detectEncoding(bytes).encoding, TextEncoding::Utf8) << bytes;
    EXPECT_EQ(detectEncoding(bytes).markLength, 0U) << bytes;
  }
}

TEST(DetectEncoding, TellsUtf16WithoutAMarkByItsZeroBytes) {
  for (const TextEncoding encoding : kUtf16Encodings) {
    for (const char32_t* text :
         {U"a", U"\"Open\" = \"Öffnen\";\n", U"\"Ок\" = \"Открыть\";\n", U"\"泊位\" = \"泊位已被占用请稍候再试\";\n"}) {
      const DetectedEncoding detected = detectEncoding(encode(text, encoding));
      EXPECT_EQ(detected.encoding, encoding) << utf8(text);
      EXPECT_EQ(detected.markLength, 0U);
    }
  }
}

TEST(DetectEncoding, IgnoresAFewZeroBytesInLongText) {
  std::string bytes(4096, 'a');
  bytes[17] = '\0';
  EXPECT_EQ(detectEncoding(bytes).encoding, TextEncoding::Utf8);
}

TEST(DetectEncoding, IgnoresZeroBytesOnBothSides) {
  EXPECT_EQ(detectEncoding(std::string(64, '\0')).encoding, TextEncoding::Utf8);
}

TEST(DetectEncoding, LooksAtTheBeginningOnly) {
  const std::string bytes = std::string(4096, 'a') + encode(std::u32string(8192, U'a'), TextEncoding::Utf16BigEndian);
  EXPECT_EQ(detectEncoding(bytes).encoding, TextEncoding::Utf8);
}

}  // namespace
}  // namespace glossmill
