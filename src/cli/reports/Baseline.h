#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/reports/CheckReport.h"
#include "text/Result.h"

namespace glossmill {

/// A finding that is known and no longer counts. The line tells people what it is, and programs by which fingerprint it
/// is known again.
struct BaselineLine {
  std::string_view check;
  std::string_view language;  ///< code; empty: about none
  std::string_view fingerprint;
  std::string_view whole;
};

/// What a file of known findings holds: a line each, sorted by bytes, so that two of them can be compared.
std::string baselineText(const std::vector<PlacedFinding>& findings);

/// The lines of such a file, but for empty ones and those that begin with "#"; views into the text. An error names the
/// line.
Result<std::vector<BaselineLine>> parseBaseline(std::string_view text);

/// Takes the known findings out of the report and says in it how many there were. What no longer occurs is told only of
/// the checks and languages of the report.
void applyBaseline(const std::vector<BaselineLine>& baseline, CheckReport& report);

}  // namespace glossmill
