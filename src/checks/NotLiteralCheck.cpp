#include "checks/NotLiteralCheck.h"

#include <algorithm>
#include <iterator>

namespace glossmill {

namespace {

constexpr std::string_view kCallKinds[] = {"key-missing",       "key-not-literal", "table-not-literal", "interpolation",
                                           "malformed-literal", "call-not-closed", "call-rejected"};

}  // namespace

std::optional<Finding> notLiteralFinding(const Problem& problem) {
  if (std::find(std::begin(kCallKinds), std::end(kCallKinds), problem.kind) == std::end(kCallKinds))
    return std::nullopt;
  return Finding{Check::NotLiteral, Severity::Info, FindingKind::ReportedProblem, problem.text, {}, {}, {}};
}

}  // namespace glossmill
