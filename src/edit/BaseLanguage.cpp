#include "edit/BaseLanguage.h"

namespace glossmill {

bool fillFromKey(LocalizeString& record, LanguageCode language) {
  if (record.languagesDict().contains(language)) return false;
  record.languagesDict().set(language, record.name());
  return true;
}

}  // namespace glossmill
