#include "model/TranslationCounts.h"

namespace glossmill {

namespace {

/// What the edit adds to the translations of a record that has a table.
int tableDifference(const Edit& edit) {
  const auto isPresent = [](const std::optional<std::string>& text) { return text && !text->empty() ? 1 : 0; };
  return edit.record->tableRow()->isWantedIn(edit.language) ? isPresent(edit.after) - isPresent(edit.before) : 0;
}

}  // namespace

void TranslationCounts::adjust(const Edit& edit) {
  if (!m_valid) return;
  if (m_present.size() <= edit.language.number()) m_present.resize(edit.language.number() + 1);
  const int difference = edit.record->tableRow() ? tableDifference(edit) : edit.entryDifference();
  m_present[edit.language.number()] += static_cast<std::size_t>(difference);
}

std::size_t TranslationCounts::missing(LanguageCode code, const StringArray& records) {
  if (!m_valid) count(records);
  const std::size_t present = code.number() < m_present.size() ? m_present[code.number()] : 0;
  const std::size_t unneeded = code.number() < m_unneeded.size() ? m_unneeded[code.number()] : 0;
  return m_wanted - unneeded - present;
}

void TranslationCounts::count(const StringArray& records) {
  m_present.clear();
  m_unneeded.clear();
  m_wanted = 0;
  for (const std::shared_ptr<LocalizeString>& record : records) {
    if (record->tableRow()) {
      countRow(*record);
    } else {
      record->languagesDict().addTo(m_present);
      ++m_wanted;
    }
  }
  m_valid = true;
}

void TranslationCounts::countRow(const LocalizeString& record) {
  const TableRow& row = *record.tableRow();
  if (!row.isWanted) return;
  ++m_wanted;
  const auto countIn = [](std::vector<std::size_t>& counts, LanguageCode code) {
    if (counts.size() <= code.number()) counts.resize(code.number() + 1);
    ++counts[code.number()];
  };
  record.languagesDict().each([&](LanguageCode code, std::string_view text) {
    if (!text.empty() && row.isWantedIn(code)) countIn(m_present, code);
  });
  if (!row.catalog) return;
  for (const LanguageCode code : row.catalog->unneeded) countIn(m_unneeded, code);
}

}  // namespace glossmill
