#pragma once

#include <string>

#include "cli/reports/CheckReport.h"

namespace glossmill {

/// For code hosts: a log of SARIF 2.1.0 with one run.
std::string sarifReport(const CheckReport& report);

}  // namespace glossmill
