#include "model/SourceText.h"

namespace glossmill {

std::string_view sourceTextOf(const LocalizeString& record, LanguageCode sourceLanguage) {
  const StoredText known = record.tableRow() ? record.tableRow()->sourceText : StoredText();
  if (known && !known.view().empty()) return known.view();
  const std::optional<std::string_view> text = record.languagesDict().find(sourceLanguage);
  return text && !text->empty() ? *text : std::string_view(record.name());
}

}  // namespace glossmill
