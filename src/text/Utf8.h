#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace glossmill {

/// U+FFFD, which stands where half of a surrogate pair is left over.
inline constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";

/// The length of the longest prefix of `bytes` that is valid UTF-8 (no surrogates, no overlong forms, nothing above
/// U+10FFFF). A sequence cut off by the end of `bytes` is not part of the prefix.
std::size_t validUtf8Prefix(std::string_view bytes);

/// The length of what stands in front of the first byte that is not ASCII.
std::size_t asciiPrefix(std::string_view bytes);

bool isValidUtf8(std::string_view bytes);

/// True when `bytes` is the beginning of at least one valid UTF-8 sequence, cut off by its end.
bool isCutUtf8Sequence(std::string_view bytes);

/// Writes one code point to `out`, which has room for four bytes, and returns the place after it.
inline char* putUtf8(char* out, char32_t codePoint) {
  const auto put = [&out](char32_t byte) { *out++ = static_cast<char>(static_cast<unsigned char>(byte)); };
  if (codePoint < 0x80) {
    put(codePoint);
    return out;
  }
  if (codePoint < 0x800) {
    put(0xC0 | (codePoint >> 6));
  } else if (codePoint < 0x10000) {
    put(0xE0 | (codePoint >> 12));
    put(0x80 | ((codePoint >> 6) & 0x3F));
  } else {
    put(0xF0 | (codePoint >> 18));
    put(0x80 | ((codePoint >> 12) & 0x3F));
    put(0x80 | ((codePoint >> 6) & 0x3F));
  }
  put(0x80 | (codePoint & 0x3F));
  return out;
}

/// Appends one code point. Lone surrogates are the caller's business: they are encoded as they come (three bytes).
void appendUtf8(std::string& text, char32_t codePoint);

/// Decodes the code point that starts `text`, which is not empty and valid UTF-8, and removes it from `text`.
char32_t takeCodePoint(std::string_view& text);

}  // namespace glossmill
