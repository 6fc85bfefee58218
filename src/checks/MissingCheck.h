#pragma once

#include <vector>

#include "checks/CheckedRow.h"

namespace glossmill {

/// No translation, or an empty one, of a row that wants one.
std::vector<Finding> missingFindings(const CheckedRow& row);

}  // namespace glossmill
