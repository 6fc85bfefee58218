#pragma once

#include <string>

#include "cli/reports/CheckReport.h"

namespace glossmill {

/// For programs: docs/json.md says what it holds.
std::string jsonReport(const CheckReport& report);

}  // namespace glossmill
