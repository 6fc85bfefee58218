#pragma once

#include <vector>

#include "model/FileText.h"
#include "model/Language.h"
#include "model/LanguageTexts.h"

namespace glossmill {

/// What saving these languages would write: one text a language, in their order. A language that has only its directory
/// so far gets a file in it. `texts` outlives the plan, whose texts are made one at a time.
std::vector<FileText> planSave(LanguageTexts& texts, const LanguageArray& languages);

}  // namespace glossmill
