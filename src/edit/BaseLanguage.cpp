#include "edit/BaseLanguage.h"

#include "model/LocalizeString.h"

namespace glossmill {

std::optional<Edit> fillFromKey(const std::shared_ptr<LocalizeString>& record, LanguageCode language) {
  if (record->languagesDict().contains(language)) return std::nullopt;
  return editOf(record, language, record->name());
}

}  // namespace glossmill
