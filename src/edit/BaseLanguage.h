#pragma once

#include "model/LocalizeString.h"

namespace glossmill {

/// Gives the record its own key as translation unless it has an entry in the language, be it the empty text. True when
/// an entry was made.
bool fillFromKey(LocalizeString& record, LanguageCode language);

}  // namespace glossmill
