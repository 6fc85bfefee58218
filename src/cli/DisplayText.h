#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace glossmill {

/// The text in a form that can do a terminal no harm: valid UTF-8, and U+FFFD for each control character but the line
/// feed and the tab.
std::string printableText(std::string_view text);

/// The same for a text that has to stay on its line.
std::string printableLine(std::string_view text);

/// How many columns a terminal needs for a printable line.
std::size_t displayWidth(std::string_view text);

/// "1 call", "2 calls".
std::string counted(std::size_t count, std::string_view noun);

}  // namespace glossmill
