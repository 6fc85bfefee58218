#pragma once

#include <cstddef>
#include <string_view>

namespace glossmill {

/// Behind the comment of /* */ that begins at `at`, with those that stand in it, or the length of the text.
std::size_t nestedCommentEnd(std::string_view text, std::size_t at);

/// Behind the regular expression that begins with the "/" at `at`, or `at` when that "/" divides. It is told by what
/// stands in front of it, and ends on its line.
std::size_t regularExpressionEnd(std::string_view text, std::size_t at);

/// Behind a regular expression with hashes, #/…/#, whose "/" is at `at`: to the closing one, or to the end of the line
/// when none stands on it and the line goes on behind the first "/".
std::size_t hashedExpressionEnd(std::string_view text, std::size_t at, std::size_t hashes);

}  // namespace glossmill
