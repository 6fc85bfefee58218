#pragma once

#include <memory>
#include <vector>

#include "model/FileText.h"
#include "model/Language.h"
#include "model/LanguageTexts.h"

namespace glossmill {

/// What saving these languages would write: one text a language, in their order. A language that has only its directory
/// so far gets a file in it. The texts of a plan are made one at a time.
std::vector<FileText> planSave(const std::shared_ptr<LanguageTexts>& texts, const LanguageArray& languages);

}  // namespace glossmill
