#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace glossmill {

/// How many columns a terminal needs for a printable line.
std::size_t displayWidth(std::string_view text);

std::string inQuotes(std::string_view text);

/// "1 call", "2 calls".
std::string counted(std::size_t count, std::string_view noun);

/// "34,864"
std::string groupedNumber(std::size_t number);

}  // namespace glossmill
