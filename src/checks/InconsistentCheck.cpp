#include "checks/InconsistentCheck.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace glossmill {

namespace {

std::string_view textOf(const CheckedLanguage& language, std::uint32_t row) {
  return language.translations[row] ? language.translations[row].view() : std::string_view();
}

bool isSameEverywhere(const CheckedLanguage& language, const std::vector<std::uint32_t>& rows) {
  std::string_view first;
  for (const std::uint32_t row : rows) {
    const std::string_view text = textOf(language, row);
    if (first.empty()) first = text;
    if (!text.empty() && text != first) return false;
  }
  return true;
}

/// The first one among those that most rows have.
std::string_view mostCommon(const CheckedLanguage& language, const std::vector<std::uint32_t>& rows) {
  std::unordered_map<std::string_view, std::size_t> counts;
  std::size_t most = 0;
  for (const std::uint32_t row : rows) {
    const std::string_view text = textOf(language, row);
    if (!text.empty()) most = std::max(most, ++counts[text]);
  }
  const auto found = std::find_if(rows.begin(), rows.end(), [&](std::uint32_t row) {
    const auto count = counts.find(textOf(language, row));
    return count != counts.end() && count->second == most;
  });
  return textOf(language, *found);
}

}  // namespace

SameSources sameSources(const SourceTexts& sources, std::size_t rows) {
  SameSources groups;
  std::unordered_map<std::string_view, std::uint32_t> first;
  std::unordered_map<std::string_view, std::size_t> groupOf;
  first.reserve(rows);
  for (std::uint32_t row = 0; row < rows; ++row) {
    const std::optional<std::string_view> source = sources.of(row);
    if (!source) continue;
    const auto [known, isNew] = first.try_emplace(*source, row);
    if (isNew) continue;
    const auto [group, isNewGroup] = groupOf.try_emplace(*source, groups.size());
    if (isNewGroup) groups.push_back({known->second});
    groups[group->second].push_back(row);
  }
  return groups;
}

std::vector<RowFinding> inconsistentFindings(const CheckedLanguage& language, const SameSources& groups) {
  std::vector<RowFinding> findings;
  for (const std::vector<std::uint32_t>& rows : groups) {
    if (isSameEverywhere(language, rows)) continue;
    const std::string_view usual = mostCommon(language, rows);
    for (const std::uint32_t row : rows) {
      const std::string_view text = textOf(language, row);
      if (text.empty() || text == usual) continue;
      findings.push_back({{Check::Inconsistent,
                           Severity::Info,
                           FindingKind::OtherTranslationElsewhere,
                           std::string(usual),
                           {},
                           {},
                           {0, text.size()}},
                          row});
    }
  }
  return findings;
}

}  // namespace glossmill
