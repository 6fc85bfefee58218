#include "model/EditedTexts.h"

#include "model/LocalizeString.h"

namespace glossmill {

void EditedTexts::add(const Edit& edit) {
  const bool isNew = m_known.emplace(edit.record.get(), edit.language.number()).second;
  if (isNew) m_texts.push_back({edit.record, edit.language});
}

void EditedTexts::removeSaved(const std::string& tableId, LanguageCode language) {
  std::erase_if(m_texts, [&](const Text& text) {
    const TableRow* row = text.record->tableRow();
    const bool isSaved = text.language == language && row && row->table->id == tableId;
    if (isSaved) m_known.erase({text.record.get(), language.number()});
    return isSaved;
  });
}

void EditedTexts::clear() {
  m_texts.clear();
  m_known.clear();
}

}  // namespace glossmill
