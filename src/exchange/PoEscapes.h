#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace glossmill {

/// Appends a keyword of a PO file and its text between quotes; one of several lines begins on a line of its own.
void appendPoText(std::string& out, std::string_view keyword, std::string_view text);

/// Appends what the escapes between the quotes stand for. Nothing where one is unknown, or the result is no UTF-8.
std::optional<std::string> poTextOf(std::string_view escaped);

}  // namespace glossmill
