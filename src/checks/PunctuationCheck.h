#pragma once

#include <vector>

#include "checks/Finding.h"

namespace glossmill {

/// A closing mark of another kind than the source text's: a question mark for a full stop, for example. Knows the marks
/// of other scripts. A text without a closing mark is not compared: many languages leave it out.
std::vector<Finding> punctuationFindings(const CheckedText& text);

}  // namespace glossmill
