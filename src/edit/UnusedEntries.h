#pragma once

#include <vector>

#include "model/Edit.h"
#include "model/Language.h"
#include "model/LocalizeString.h"

namespace glossmill {

/// The edits that take the entries of these languages out of which nothing makes use, record by record.
std::vector<Edit> editsOfUnused(const StringArray& records, const LanguageArray& languages);

}  // namespace glossmill
