#include "checks/UnusedCheck.h"

namespace glossmill {

namespace {

/// The table whose keys the system looks for by itself.
constexpr std::string_view kReadByTheSystem = "InfoPlist";

Finding unusedEntry() {
  return {Check::Unused, Severity::Info, FindingKind::UnusedEntry, {}, {}, {}, {}};
}

}  // namespace

std::vector<Finding> unusedFindings(const CheckedRow& row) {
  const TableRow* const of = row.record.tableRow();
  if (!row.translation || !of || !of->isUnused || of->table->name == kReadByTheSystem) return {};
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
