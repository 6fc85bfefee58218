#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "checks/Finding.h"
#include "model/LocalizeString.h"

namespace glossmill {

/// Hands all translations of a row to whoever asks, with the codes of their languages.
using TakeTranslation = std::function<void(std::string_view language, std::string_view text)>;
using EachTranslation = std::function<void(const TakeTranslation& take)>;

/// A row in one language. Of the record no translation is looked at: it may be edited meanwhile.
struct CheckedRow {
  const LocalizeString& record;
  std::optional<std::string_view> source;       ///< nothing where nobody knows what is translated
  std::optional<std::string_view> translation;  ///< nothing where there is no entry
  std::string_view language;                    ///< code
  std::string_view baseLanguage;                ///< code of the source text's language; empty where it is not known
  TextForm form = TextForm::Values;
  EachTranslation translations = {};  ///< of all languages; empty where nobody knows them
};

}  // namespace glossmill
