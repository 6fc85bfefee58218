#include "scan/TranslationColumns.h"

#include <algorithm>
#include <utility>

namespace glossmill {

void TranslationColumns::add(LanguageCode language, std::span<const StringsFileEntry> entries) {
  if (entries.empty()) return;
  Column& column = m_columns.emplace_back(Column{language, {}});
  column.blocks.resize((m_records.size() + kBlock - 1) / kBlock);
  for (const StringsFileEntry& entry : entries) {
    Block& block = column.blocks[entry.key / kBlock];
    if (!block) block = std::make_unique<Block::element_type>();
    (*block)[entry.key % kBlock] = entry.value;
  }
}

void TranslationColumns::moveIntoRecords() {
  if (m_columns.empty()) return;
  const auto highest = std::max_element(m_columns.begin(), m_columns.end(), [](const Column& a, const Column& b) {
    return a.language.number() < b.language.number();
  });
  for (std::size_t number = 0; number < m_records.size(); ++number) {
    moveIntoRecord(number, highest->language);
    if (number % kBlock != kBlock - 1) continue;
    for (Column& column : m_columns) column.blocks[number / kBlock].reset();
  }
}

void TranslationColumns::moveIntoRecord(std::size_t number, LanguageCode highest) {
  LanguagesDict translations = m_records[number]->takeLanguagesDict();
  translations.reserve(highest);
  for (const Column& column : m_columns) {
    const Block& block = column.blocks[number / kBlock];
    const StoredText value = block ? (*block)[number % kBlock] : StoredText();
    if (value) translations.setStored(column.language, value);
  }
  m_records[number]->setLanguagesDict(std::move(translations));
}

}  // namespace glossmill
