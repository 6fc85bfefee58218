#pragma once

#include <string_view>

#include "model/Language.h"

namespace glossmill {

/// A language of the ISO 639 table as it may be chosen for a project: it has no directory yet, and is marked as in use
/// when one of the `used` languages has the same code.
Language languageEntry(std::string_view code, std::string_view name, const LanguageArray& used);

}  // namespace glossmill
