#include "checks/UnusedCheck.h"

namespace glossmill {

namespace {

Finding unusedEntry() {
  return {Check::Unused, Severity::Info, FindingKind::UnusedEntry, {}, {}, {}, {}};
}

}  // namespace

std::vector<Finding> unusedFindings(const CheckedRow& row) {
  if (!row.translation || !row.record.tableRow() || !row.record.tableRow()->isUnused) return {};
  return {unusedEntry()};
}

std::vector<EntryFinding> unusedFindings(const FileEntries& file,
                                         const std::function<bool(std::string_view key)>& isNamed) {
  std::vector<EntryFinding> findings;
  for (std::size_t entry = 0; entry < file.entries.size(); ++entry) {
    if (!isNamed(file.entries[entry].key.view())) findings.push_back({unusedEntry(), entry});
  }
  return findings;
}

}  // namespace glossmill
