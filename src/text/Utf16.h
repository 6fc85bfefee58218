#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace glossmill {

/// The number of UTF-16 units that the UTF-8 text takes.
std::size_t utf16Length(std::string_view text);

/// The first `units` UTF-16 units of the UTF-8 text, or all of it when it is shorter. A cut in the middle of a
/// surrogate pair leaves U+FFFD in the place of its first half.
std::string clipUtf16(std::string_view text, std::size_t units);

}  // namespace glossmill
