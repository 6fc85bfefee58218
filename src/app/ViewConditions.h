#pragma once

#include <memory>

#include "app/ViewFilter.h"
#include "model/StringsTable.h"

namespace glossmill {

// What views are narrowed by.

/// The strings of one table.
ViewFilter::Condition isOfTable(std::shared_ptr<const StringsTable> table);

}  // namespace glossmill
