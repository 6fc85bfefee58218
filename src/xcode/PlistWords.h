#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace glossmill {

// The words of the old property list syntax, which project files and strings files are written in. Texts are valid
// UTF-8, places are bytes.

/// Behind the byte-order marks in front: a file has been seen with two, of which reading it takes one.
std::size_t behindMarks(std::string_view text);

/// Behind the white space at `at`: blanks, tabs, line ends of every kind, U+2028 and U+2029.
std::size_t skipPlistSpace(std::string_view text, std::size_t at);

inline constexpr std::size_t kNotClosed = std::string_view::npos;

/// Behind the comment that begins at `at`, a line comment without its line end; `at` when none does, kNotClosed when a
/// block comment does not end.
std::size_t endOfPlistComment(std::string_view text, std::size_t at);

/// False for a byte that neither white space nor a comment begins with.
inline bool mayBeInPlistGap(char byte) {
  return byte == ' ' || (byte >= '\t' && byte <= '\r') || byte == '/' || byte == '\xE2';
}

/// Behind the white space and comments at `at`, or where a comment begins that is not closed.
std::size_t skipPlistGap(std::string_view text, std::size_t at);

/// A text as it is spelled, with quotes of either kind or without any.
struct PlistWord {
  enum class Kind { None, Bare, Quoted, NotClosed };

  Kind kind = Kind::None;
  std::size_t begin = 0;  ///< of what stands between the quotes
  std::size_t end = 0;
  std::size_t after = 0;  ///< behind the closing quote
  bool hasEscapes = false;

  bool isText() const { return kind == Kind::Bare || kind == Kind::Quoted; }
  std::string_view in(std::string_view text) const { return text.substr(begin, end - begin); }
};

PlistWord plistWordAt(std::string_view text, std::size_t at);

/// True for a text that needs no quotes; never for the empty one.
bool isBareWord(std::string_view text);

}  // namespace glossmill
