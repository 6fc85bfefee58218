#include "checks/MalformedCheck.h"

#include <algorithm>
#include <iterator>

namespace glossmill {

namespace {

constexpr std::string_view kUnreadKinds[] = {"project-file",   "source-unread", "strings-unread",
                                             "strings-syntax", "line-rejected", "place-unread"};

}  // namespace

std::optional<Finding> malformedFinding(const Problem& problem) {
  if (std::find(std::begin(kUnreadKinds), std::end(kUnreadKinds), problem.kind) == std::end(kUnreadKinds))
    return std::nullopt;
  return Finding{Check::Malformed, Severity::Error, FindingKind::ReportedProblem, problem.text, {}, {}, {}};
}

}  // namespace glossmill
