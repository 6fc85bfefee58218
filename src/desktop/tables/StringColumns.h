#pragma once

#include <vector>

#include "desktop/tables/Column.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// The number of the column that says the table of a string.
inline constexpr int kTableColumn = 6;

/// The columns of the project's strings. `project` outlives them.
std::vector<Column<LocalizeString>> stringColumns(const ProjectWindowController& project);

}  // namespace glossmill
