#pragma once

#include <vector>

#include "checks/Finding.h"

namespace glossmill {

/// What nobody sees: control characters, directions that are begun and not ended, replacement characters, and no-break
/// spaces where the source text has plain blanks, but for those that French wants beside its marks.
std::vector<Finding> invisibleFindings(const CheckedText& text);

}  // namespace glossmill
