#pragma once

#include <vector>

#include "app/ReferenceText.h"
#include "desktop/tables/Column.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

// The numbers of the columns that some projects have nothing to say in.
inline constexpr int kTableColumn = 6;
inline constexpr int kSourceColumn = 7;

/// The columns of the project's strings. `project` outlives them.
std::vector<Column<LocalizeString>> stringColumns(const ProjectWindowController& project,
                                                  const ReferenceText& reference);

}  // namespace glossmill
