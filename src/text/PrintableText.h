#pragma once

#include <string>
#include <string_view>

namespace glossmill {

/// Adds the text in a form that can do a terminal no harm: valid UTF-8, U+FFFD for each control character but the line
/// feed and the tab, and a code such as <U+202E> for what would turn the direction of the text around it.
void appendPrintableText(std::string& printable, std::string_view text);

/// The same for a text that has to stay on its line.
std::string printableLine(std::string_view text);

}  // namespace glossmill
