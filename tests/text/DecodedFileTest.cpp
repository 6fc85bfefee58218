#include <gtest/gtest.h>

#include "text/DecodedFile.h"
#include "text/EncodedText.h"

namespace glossmill {
namespace {

/// Reads the bytes and writes them again; gives what was read.
DecodedFile readAndWrite(const std::string& bytes, std::optional<FileEncoding> otherwise = std::nullopt) {
  const Result<DecodedFile> file = textOfFile(bytes, otherwise);
  EXPECT_TRUE(file.ok()) << file.error().sentence;
  const Result<std::string> again = bytesOfFile(file.value());
  EXPECT_TRUE(again.ok() && again.value() == bytes);
  return file.value();
}

std::string sentenceFor(const std::string& bytes, std::optional<FileEncoding> otherwise = std::nullopt) {
  const Result<DecodedFile> file = textOfFile(bytes, otherwise);
  return file ? "read" : file.error().sentence;
}

TEST(DecodedFile, AMarkDecidesWhateverTheProjectSays) {
  for (const TextEncoding encoding : kAllEncodings) {
    const DecodedFile file = readAndWrite(withMark(U"ä€\U0001F6A2\n", encoding), EightBitEncoding::MacRoman);
    EXPECT_EQ(file.text, "ä€\U0001F6A2\n");
    EXPECT_EQ(file.encoding, FileEncoding(encoding));
    EXPECT_TRUE(file.hasMark);
  }
}

TEST(DecodedFile, ASecondMarkStaysInTheText) {
  EXPECT_EQ(readAndWrite("\uFEFF\uFEFFa").text, "\uFEFFa");
  EXPECT_EQ(readAndWrite(withMark(U"\uFEFFa", TextEncoding::Utf16LittleEndian)).text, "\uFEFFa");
}

TEST(DecodedFile, ZeroBytesTellUtf16WithoutAMark) {
  for (const TextEncoding encoding : kUtf16Encodings) {
    const DecodedFile file = readAndWrite(encode(U"\"ä\" = \"\U0001F6A2\";\n", encoding), EightBitEncoding::MacRoman);
    EXPECT_EQ(file.text, "\"ä\" = \"\U0001F6A2\";\n");
    EXPECT_EQ(file.encoding, FileEncoding(encoding));
    EXPECT_FALSE(file.hasMark);
  }
}

TEST(DecodedFile, Utf8ComesBeforeWhatTheProjectSays) {
  const DecodedFile file = readAndWrite("ä", EightBitEncoding::MacRoman);
  EXPECT_EQ(file.text, "ä");
  EXPECT_EQ(file.encoding, FileEncoding(TextEncoding::Utf8));
  EXPECT_FALSE(file.hasMark);
}

TEST(DecodedFile, WhatIsNotUtf8IsReadAsTheProjectSays) {
  EXPECT_EQ(readAndWrite("\x8A\xD2", EightBitEncoding::MacRoman).text, "ä“");
  EXPECT_EQ(readAndWrite("\xE4\x80", EightBitEncoding::Windows1252).text, "ä€");
  EXPECT_EQ(readAndWrite(encode(U"漢€", TextEncoding::Utf16BigEndian), TextEncoding::Utf16BigEndian).text, "漢€");
  EXPECT_EQ(sentenceFor("\xE4"), kUtf8Sentence);
  EXPECT_EQ(sentenceFor("\xE4", TextEncoding::Utf8), kUtf8Sentence);
  EXPECT_EQ(sentenceFor("\xEF\xBB\xBF\xE4", EightBitEncoding::Latin1), kUtf8Sentence);
  EXPECT_EQ(sentenceFor("\xE4", EightBitEncoding::Ascii), "The file is not valid ASCII.");
  EXPECT_EQ(sentenceFor("\xE4\x81", EightBitEncoding::Windows1252), "The file is not valid Windows 1252.");
  EXPECT_EQ(sentenceFor("\xFF\xFE\x41", EightBitEncoding::Latin1), kUtf16Sentence);
}

TEST(DecodedFile, EmptyBytesAreTheEmptyText) {
  EXPECT_EQ(readAndWrite("", EightBitEncoding::MacRoman).text, "");
}

TEST(DecodedFile, ACharacterThatTheEncodingLacksIsNamed) {
  const Result<std::string> bytes = bytesOfFile({"aж€", EightBitEncoding::MacRoman, false});
  ASSERT_FALSE(bytes.ok());
  EXPECT_EQ(bytes.error().sentence, "The character “ж” cannot be written in the encoding of the file, Mac Roman.");
}

TEST(DecodedFile, KnowsTheNumbersOfProjectFiles) {
  EXPECT_EQ(encodingOfNumber(1), FileEncoding(EightBitEncoding::Ascii));
  EXPECT_EQ(encodingOfNumber(4), FileEncoding(TextEncoding::Utf8));
  EXPECT_EQ(encodingOfNumber(5), FileEncoding(EightBitEncoding::Latin1));
  EXPECT_EQ(encodingOfNumber(9), FileEncoding(EightBitEncoding::Latin2));
  EXPECT_EQ(encodingOfNumber(10), FileEncoding(TextEncoding::Utf16BigEndian));
  EXPECT_EQ(encodingOfNumber(12), FileEncoding(EightBitEncoding::Windows1252));
  EXPECT_EQ(encodingOfNumber(30), FileEncoding(EightBitEncoding::MacRoman));
  EXPECT_EQ(encodingOfNumber(0x90000100), FileEncoding(TextEncoding::Utf16BigEndian));
  EXPECT_EQ(encodingOfNumber(0x94000100), FileEncoding(TextEncoding::Utf16LittleEndian));
  EXPECT_EQ(encodingOfNumber(0), std::nullopt);
  EXPECT_EQ(encodingOfNumber(0x80000A01), std::nullopt);
}

TEST(DecodedFile, KnowsEncodingsByName) {
  EXPECT_EQ(encodingOfName("UTF-8"), FileEncoding(TextEncoding::Utf8));
  EXPECT_EQ(encodingOfName("ISO-8859-1"), FileEncoding(EightBitEncoding::Latin1));
  EXPECT_EQ(encodingOfName("utf-7"), std::nullopt);
  EXPECT_EQ(displayName(EightBitEncoding::Latin2), "ISO Latin 2");
}

}  // namespace
}  // namespace glossmill
