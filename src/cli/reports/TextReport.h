#pragma once

#include <functional>
#include <string>

#include "cli/Console.h"
#include "cli/reports/CheckReport.h"

namespace glossmill {

/// Gives a text its colour, or leaves it as it is.
using Painter = std::function<std::string(Paint, std::string_view)>;

/// For people: each finding as compilers say it, with key, source text and translation below, and a summary.
std::string textReport(const CheckReport& report, const Painter& painted);

}  // namespace glossmill
