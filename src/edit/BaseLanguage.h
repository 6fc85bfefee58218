#pragma once

#include <memory>
#include <optional>

#include "model/Edit.h"

namespace glossmill {

/// The edit that gives the record its own key as translation (rule 46). Nothing when it has an entry in the language,
/// be it the empty text. In a project with tables its source text, and nothing where that is not known or where no
/// translation is wanted.
std::optional<Edit> fillFromKey(const std::shared_ptr<LocalizeString>& record, LanguageCode language);

}  // namespace glossmill
