#pragma once

#include <cstddef>
#include <string_view>

namespace glossmill {

/// Where the comments and literals of C end. Each question starts at the first byte of the piece, and each answer is
/// the place behind it, or the length of the text when nothing ends it. Line continuations are seen through everywhere
/// but in raw strings.

/// From "//"; the line end that ends it does not belong to it.
std::size_t lineCommentEnd(std::string_view text, std::size_t at);

/// From "/" and "*".
std::size_t blockCommentEnd(std::string_view text, std::size_t at);

struct LiteralEnd {
  std::size_t end = 0;
  bool broken = false;  ///< the line or the text ended it
};

/// From the quote, single or double, that also ends it.
LiteralEnd quotedEnd(std::string_view text, std::size_t at);

/// From the quote of a raw string: R"x(…)x".
LiteralEnd rawStringEnd(std::string_view text, std::size_t quote);

/// Where the raw string begins whose quote this is, with its prefix: a word of its own at or after `floor`, "R" or
/// "u8R" and the like, and behind the quote a delimiter and "(". `quote` itself when it begins no raw string.
std::size_t rawStringBegin(std::string_view text, std::size_t quote, std::size_t floor);

}  // namespace glossmill
