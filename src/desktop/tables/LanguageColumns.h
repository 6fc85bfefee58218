#pragma once

#include <vector>

#include "desktop/tables/Column.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// The columns of the project's languages, in the project window and in its choosers. `project` outlives them.
std::vector<Column<Language>> languageColumns(const ProjectWindowController& project);

}  // namespace glossmill
