#pragma once

#include <vector>

#include "checks/Finding.h"

namespace glossmill {

/// What nobody sees: control characters, directions that are begun and not ended, replacement characters, and no-break
/// spaces between words where the source text has plain blanks.
std::vector<Finding> invisibleFindings(const CheckedText& text);

}  // namespace glossmill
