#pragma once

#include <string_view>
#include <utility>

#include "model/LocalizeString.h"

namespace glossmill {

/// Gives a record this text as if it had been built with it: past the door for edits.
inline void store(LocalizeString& record, LanguageCode code, std::string_view text) {
  LanguagesDict translations = record.takeLanguagesDict();
  translations.set(code, text);
  record.setLanguagesDict(std::move(translations));
}

}  // namespace glossmill
