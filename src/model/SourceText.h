#pragma once

#include <string_view>

#include "model/LocalizeString.h"

namespace glossmill {

/// What the record's translations are made of: what its row says, else its text in the source language, else its key.
/// Valid until a text of the record changes.
std::string_view sourceTextOf(const LocalizeString& record, LanguageCode sourceLanguage);

}  // namespace glossmill
