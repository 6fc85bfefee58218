#pragma once

#include <vector>

#include "checks/CheckPolicy.h"
#include "checks/CheckedRow.h"

namespace glossmill {

/// What those checks find that look at one row and nothing else, and are on; severities are those of the checks. Any
/// thread.
std::vector<Finding> rowFindings(const CheckedRow& row, const CheckPolicy& policy);

}  // namespace glossmill
