#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "text/TextDecoder.h"
#include "text/Utf8.h"

namespace glossmill {

/// Encodes the way the decoder is to read it; surrogates in `text` are written as they come.
inline std::string encode(const std::u32string& text, TextEncoding encoding) {
  const bool little = encoding == TextEncoding::Utf16LittleEndian || encoding == TextEncoding::Utf32LittleEndian;
  std::string bytes;
  const auto putUnit = [&](char32_t unit, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) {
      const std::size_t shift = 8 * (little ? i : size - 1 - i);
      bytes.push_back(static_cast<char>(static_cast<unsigned char>(unit >> shift & 0xFF)));
    }
  };
  for (const char32_t codePoint : text) {
    if (encoding == TextEncoding::Utf8) {
      appendUtf8(bytes, codePoint);
    } else if (encoding == TextEncoding::Utf32LittleEndian || encoding == TextEncoding::Utf32BigEndian) {
      putUnit(codePoint, 4);
    } else if (codePoint < 0x10000) {
      putUnit(codePoint, 2);
    } else {
      putUnit(0xD800 + ((codePoint - 0x10000) >> 10), 2);
      putUnit(0xDC00 + ((codePoint - 0x10000) & 0x3FF), 2);
    }
  }
  return bytes;
}

inline std::string withMark(const std::u32string& text, TextEncoding encoding) {
  return encode(U"\uFEFF", encoding) + encode(text, encoding);
}

inline std::string utf8(const std::u32string& text) {
  return encode(text, TextEncoding::Utf8);
}

inline constexpr TextEncoding kAllEncodings[] = {TextEncoding::Utf8, TextEncoding::Utf16LittleEndian,
                                                 TextEncoding::Utf16BigEndian, TextEncoding::Utf32LittleEndian,
                                                 TextEncoding::Utf32BigEndian};
inline constexpr TextEncoding kUtf16Encodings[] = {TextEncoding::Utf16LittleEndian, TextEncoding::Utf16BigEndian};
inline constexpr TextEncoding kUtf32Encodings[] = {TextEncoding::Utf32LittleEndian, TextEncoding::Utf32BigEndian};

// What a person reads about a malformed file.
inline constexpr std::string_view kUtf8Sentence =
    "The file is not valid UTF-8 and has no byte-order mark of another encoding.";
inline constexpr std::string_view kUtf16Sentence = "The file is malformed UTF-16.";
inline constexpr std::string_view kUtf32Sentence = "The file is malformed UTF-32.";

}  // namespace glossmill
