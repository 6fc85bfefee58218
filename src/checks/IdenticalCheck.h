#pragma once

#include <vector>

#include "checks/Finding.h"

namespace glossmill {

/// A translation that equals a source text of two words or more, in another language than the source text's.
std::vector<Finding> identicalFindings(const CheckedText& text);

}  // namespace glossmill
