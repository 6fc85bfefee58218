#pragma once

#include <string_view>

#include "checks/FileEntries.h"

namespace glossmill {

/// What the classic rules take of the text of a strings file, and where it stands, by their own reader. An entry's
/// place is that of its first quote; a rejected line's that of what is left of it without comments.
FileEntries classicEntries(std::string_view text);

}  // namespace glossmill
