#include "edit/UnusedEntries.h"

namespace glossmill {

std::vector<Edit> editsOfUnused(const StringArray& records, const LanguageArray& languages) {
  std::vector<Edit> edits;
  for (const std::shared_ptr<LocalizeString>& record : records) {
    const TableRow* row = record->tableRow();
    if (!row || !row->isUnused) continue;
    for (const std::shared_ptr<Language>& language : languages) {
      if (!record->languagesDict().contains(language->code())) continue;
      edits.push_back(editOf(record, language->code(), std::nullopt));
    }
  }
  return edits;
}

}  // namespace glossmill
