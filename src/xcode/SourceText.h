#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace glossmill {

namespace detail {

inline constexpr auto kWordBytes = [] {
  std::array<bool, 256> isWord{};
  for (std::size_t byte = 0; byte < isWord.size(); ++byte) {
    const std::size_t letter = byte | 0x20;
    isWord[byte] = (letter >= 'a' && letter <= 'z') || (byte >= '0' && byte <= '9') || byte >= 0x80;
  }
  isWord['_'] = isWord['$'] = true;
  return isWord;
}();

}  // namespace detail

/// A byte of a word: letters, digits, "_", "$" and all that is not ASCII.
inline bool isWordByte(char byte) {
  return detail::kWordBytes[static_cast<unsigned char>(byte)];
}

inline bool isDigit(char byte) {
  return byte >= '0' && byte <= '9';
}

/// White space inside a line.
inline bool isBlank(char byte) {
  return byte == ' ' || byte == '\t' || byte == '\v' || byte == '\f';
}

inline bool isLineEnd(char byte) {
  return byte == '\n' || byte == '\r';
}

/// The place behind the line end (LF, CR or CRLF) at `at`.
inline std::size_t afterLineEnd(std::string_view text, std::size_t at) {
  return at + (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n' ? 2 : 1);
}

/// The place behind the word that stands at `at`.
inline std::size_t plainWordEnd(std::string_view text, std::size_t at) {
  while (at < text.size() && isWordByte(text[at])) ++at;
  return at;
}

/// The length of the line continuation of C at `at`: a backslash, blanks that somebody left behind it, and the line
/// end. 0 when there is none.
inline std::size_t continuationLength(std::string_view text, std::size_t at) {
  if (at >= text.size() || text[at] != '\\') return 0;
  std::size_t end = at + 1;
  while (end < text.size() && isBlank(text[end])) ++end;
  return end < text.size() && isLineEnd(text[end]) ? afterLineEnd(text, end) - at : 0;
}

/// `at`, or the place behind the continuations that stand there.
inline std::size_t afterContinuations(std::string_view text, std::size_t at) {
  while (const std::size_t length = continuationLength(text, at)) at += length;
  return at;
}

/// `at`, or where the continuations begin that end there; nothing in front of `floor` is looked at.
std::size_t beforeContinuations(std::string_view text, std::size_t at, std::size_t floor);

/// What is left of a piece of C source without its line continuations.
std::string withoutContinuations(std::string_view source);

}  // namespace glossmill
