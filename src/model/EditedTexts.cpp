#include "model/EditedTexts.h"

#include <algorithm>

#include "model/LocalizeString.h"

namespace glossmill {

namespace {

bool isOf(const EditedTexts::Text& text, const std::string& tableId, LanguageCode language) {
  const TableRow* row = text.record->tableRow();
  return text.language == language && row && row->table->id == tableId;
}

}  // namespace

void EditedTexts::add(const Edit& edit) {
  const bool isNew = m_known.emplace(edit.record.get(), edit.language.number()).second;
  if (isNew) m_texts.push_back({edit.record, edit.language});
}

void EditedTexts::removeSaved(const std::string& tableId, LanguageCode language) {
  std::erase_if(m_texts, [&](const Text& text) {
    const bool isSaved = isOf(text, tableId, language);
    if (isSaved) m_known.erase({text.record.get(), language.number()});
    return isSaved;
  });
}

bool EditedTexts::holds(const std::string& tableId, LanguageCode language) const {
  return std::any_of(m_texts.begin(), m_texts.end(), [&](const Text& text) { return isOf(text, tableId, language); });
}

void EditedTexts::clear() {
  m_texts.clear();
  m_known.clear();
}

}  // namespace glossmill
