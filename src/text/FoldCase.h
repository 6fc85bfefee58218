#pragma once

#include <string>
#include <string_view>

namespace glossmill {

/// The text with its letters in lower case, for searches that do not mind the case: ASCII, Latin-1 and Latin
/// Extended-A, Greek and Cyrillic letters; everything else stays as it is. Takes and gives valid UTF-8.
std::string foldCase(std::string_view text);

}  // namespace glossmill
