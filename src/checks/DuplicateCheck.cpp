#include "checks/DuplicateCheck.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

namespace glossmill {

namespace {

/// `entries` are those of one key.
EntryFinding repeated(const FileEntries& file, const std::vector<std::size_t>& entries) {
  const std::string_view counting = file.entries[entries.back()].value.view();
  const auto other = std::find_if(entries.begin(), entries.end(),
                                  [&](std::size_t entry) { return file.entries[entry].value.view() != counting; });
  const bool differs = other != entries.end();
  const std::uint32_t line = file.entries[differs ? *other : entries.front()].line;
  return {{Check::Duplicate,
           differs ? Severity::Error : Severity::Warning,
           differs ? FindingKind::RepeatedKeyOtherText : FindingKind::RepeatedKey,
           std::to_string(line),
           {},
           {},
           {}},
          entries.back()};
}

}  // namespace

std::vector<EntryFinding> duplicateFindings(const FileEntries& file) {
  std::unordered_map<std::string_view, std::vector<std::size_t>> repetitions;
  std::unordered_map<std::string_view, std::size_t> first;
  first.reserve(file.entries.size());
  for (std::size_t entry = 0; entry < file.entries.size(); ++entry) {
    const std::string_view key = file.entries[entry].key.view();
    const auto [known, isNew] = first.try_emplace(key, entry);
    if (isNew) continue;
    std::vector<std::size_t>& entries = repetitions[key];
    if (entries.empty()) entries.push_back(known->second);
    entries.push_back(entry);
  }
  std::vector<EntryFinding> findings;
  for (const auto& [key, entries] : repetitions) findings.push_back(repeated(file, entries));
  std::sort(findings.begin(), findings.end(),
            [](const EntryFinding& a, const EntryFinding& b) { return a.entry < b.entry; });
  return findings;
}

}  // namespace glossmill
