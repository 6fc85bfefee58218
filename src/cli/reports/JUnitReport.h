#pragma once

#include <string>

#include "cli/reports/CheckReport.h"

namespace glossmill {

/// For build servers: a suite for each language, in it a test case for each finding, and one that passes for each check
/// that found nothing. A finding that is no failure passes too, with its text as output. What is about no language is
/// in a suite "project".
std::string junitReport(const CheckReport& report);

}  // namespace glossmill
