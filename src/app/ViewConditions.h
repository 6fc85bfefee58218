#pragma once

#include <memory>

#include "app/ViewFilter.h"
#include "model/StringsTable.h"

namespace glossmill {

// What views are narrowed by.

/// The strings of one table.
ViewFilter::Condition isOfTable(std::shared_ptr<const StringsTable> table);

/// Those without a translation into the language that is selected. `project` outlives the condition.
ViewFilter::Condition isUntranslated(const ProjectWindowController& project);

/// Those that nothing in the sources uses.
ViewFilter::Condition isUnused();

}  // namespace glossmill
