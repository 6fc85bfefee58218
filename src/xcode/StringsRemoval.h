#pragma once

#include <vector>

#include "xcode/StringsLayout.h"
#include "xcode/TextReplacements.h"

namespace glossmill {

/// Takes entries out, each with the nearest comment in front, those that touch it, and those behind it on its line; and
/// one blank line where two would meet. Comments that begin on the line of an entry that stays do so, too, and so does
/// the header of the file.
std::vector<TextReplacement> removalsOf(const std::vector<bool>& isRemoved, const StringsLayout& layout);

}  // namespace glossmill
