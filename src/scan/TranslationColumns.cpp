#include "scan/TranslationColumns.h"

#include <algorithm>
#include <utility>

namespace glossmill {

void TranslationColumns::add(LanguageCode language, std::span<const StringsFileEntry> entries) {
  if (entries.empty()) return;
  Column& column = m_columns.emplace_back(Column{language, std::vector<StoredText>(m_records.size())});
  for (const StringsFileEntry& entry : entries) column.values[entry.key] = entry.value;
}

void TranslationColumns::moveIntoRecords() {
  if (m_columns.empty()) return;
  const auto highest = std::max_element(m_columns.begin(), m_columns.end(), [](const Column& a, const Column& b) {
    return a.language.number() < b.language.number();
  });
  for (std::size_t number = 0; number < m_records.size(); ++number) {
    LanguagesDict translations = m_records[number]->takeLanguagesDict();
    translations.reserve(highest->language);
    for (const Column& column : m_columns) {
      if (column.values[number]) translations.setStored(column.language, column.values[number]);
    }
    m_records[number]->setLanguagesDict(std::move(translations));
  }
}

}  // namespace glossmill
