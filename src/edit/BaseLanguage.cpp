#include "edit/BaseLanguage.h"

#include <utility>

#include "model/LocalizeString.h"

namespace glossmill {

namespace {

/// Nothing where nobody wants a translation, or nobody knows what is to be translated.
std::optional<std::string> textToFillIn(const LocalizeString& record, LanguageCode language) {
  const TableRow* row = record.tableRow();
  if (!row) return record.name();
  const bool isKnown =
      row->isWantedIn(language) && !row->isUnused && row->sourceText && !row->sourceText.view().empty();
  return isKnown ? std::optional(std::string(row->sourceText.view())) : std::nullopt;
}

}  // namespace

std::optional<Edit> fillFromKey(const std::shared_ptr<LocalizeString>& record, LanguageCode language) {
  if (record->languagesDict().contains(language)) return std::nullopt;
  std::optional<std::string> text = textToFillIn(*record, language);
  return text ? std::optional(editOf(record, language, std::move(text))) : std::nullopt;
}

}  // namespace glossmill
