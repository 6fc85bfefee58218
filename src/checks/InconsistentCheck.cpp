#include "checks/InconsistentCheck.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

#include "checks/Characters.h"

namespace glossmill {

namespace {

/// The translation; "" where there is none, or the source text was left as it is.
std::string_view textOf(const CheckedLanguage& language, const SameSource& group, std::uint32_t row) {
  const std::string_view text = language.translations[row] ? language.translations[row].view() : std::string_view();
  return text == group.source ? std::string_view() : text;
}

/// No-break spaces and blanks are one.
std::string plainText(std::string_view text) {
  std::string plain(text);
  for (const std::string_view space : {std::string_view("\u00A0"), std::string_view("\u202F")}) {
    for (std::size_t at = plain.find(space); at != plain.npos; at = plain.find(space, at)) {
      plain.replace(at, space.size(), " ");
    }
  }
  return plain;
}

bool isSame(std::string_view one, std::string_view other) {
  return one == other || plainText(one) == plainText(other);
}

bool isSameEverywhere(const CheckedLanguage& language, const SameSource& group) {
  std::string_view first;
  for (const std::uint32_t row : group.rows) {
    const std::string_view text = textOf(language, group, row);
    if (first.empty()) first = text;
    if (!text.empty() && text != first) return false;
  }
  return true;
}

/// Texts of marks and numbers differ for reasons of their own.
bool hasWord(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char byte) {
    const auto letter = static_cast<unsigned char>(byte) | 0x20U;
    return (letter >= 'a' && letter <= 'z') || static_cast<unsigned char>(byte) >= 0x80;
  });
}

/// The first one among those that most rows have.
std::string_view mostCommon(const CheckedLanguage& language, const SameSource& group) {
  std::unordered_map<std::string_view, std::size_t> counts;
  std::size_t most = 0;
  for (const std::uint32_t row : group.rows) {
    const std::string_view text = textOf(language, group, row);
    if (!text.empty()) most = std::max(most, ++counts[text]);
  }
  const auto found = std::find_if(group.rows.begin(), group.rows.end(), [&](std::uint32_t row) {
    const auto count = counts.find(textOf(language, group, row));
    return count != counts.end() && count->second == most;
  });
  return textOf(language, group, *found);
}

}  // namespace

SameSources sameSources(const SourceTexts& sources, std::size_t rows) {
  SameSources groups;
  std::unordered_map<std::string_view, std::uint32_t> first;
  std::unordered_map<std::string_view, std::size_t> groupOf;
  first.reserve(rows);
  for (std::uint32_t row = 0; row < rows; ++row) {
    const std::optional<std::string_view> source = sources.of(row);
    if (!source || !hasWord(*source) || isXcodePlaceholder(*source)) continue;
    const auto [known, isNew] = first.try_emplace(*source, row);
    if (isNew) continue;
    const auto [group, isNewGroup] = groupOf.try_emplace(*source, groups.size());
    if (isNewGroup) groups.push_back({*source, {known->second}});
    groups[group->second].rows.push_back(row);
  }
  return groups;
}

std::vector<RowFinding> inconsistentFindings(const CheckedLanguage& language, const SameSources& groups) {
  std::vector<RowFinding> findings;
  for (const SameSource& group : groups) {
    if (isSameEverywhere(language, group)) continue;
    const std::string_view usual = mostCommon(language, group);
    for (const std::uint32_t row : group.rows) {
      const std::string_view text = textOf(language, group, row);
      if (text.empty() || isSame(text, usual)) continue;
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
