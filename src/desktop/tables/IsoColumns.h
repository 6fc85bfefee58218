#pragma once

#include <vector>

#include "desktop/tables/Column.h"
#include "model/Language.h"
#include "platform/Bundle.h"

namespace glossmill {

/// The columns of languages that can be added, in another colour when the project has the language already.
std::vector<Column<Language>> isoColumns(const Bundle& bundle);

}  // namespace glossmill
