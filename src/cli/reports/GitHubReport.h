#pragma once

#include <string>

#include "cli/reports/CheckReport.h"

namespace glossmill {

/// For the log of a GitHub workflow: each finding as a command that makes an annotation of it.
std::string githubReport(const CheckReport& report);

}  // namespace glossmill
