#pragma once

#include <QString>
#include <string_view>

namespace glossmill {

/// A text on the one line of a table cell: line breaks become visible signs, and what no cell has room for is cut off.
QString cellText(std::string_view text);

/// A text with a visible sign before each line break.
QString textWithVisibleBreaks(std::string_view text);

}  // namespace glossmill
