#pragma once

#include <vector>

#include "checks/Finding.h"

namespace glossmill {

/// White space at either end, or a number of line breaks inside, that differs from the source text's. Blanks of all
/// widths are the same, and a full-width mark at the end brings its blank with it.
std::vector<Finding> whiteSpaceFindings(const CheckedText& text);

}  // namespace glossmill
