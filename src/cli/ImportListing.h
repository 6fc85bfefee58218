#pragma once

#include <string>

#include "cli/Console.h"
#include "cli/JsonWriter.h"
#include "exchange/ImportPlan.h"
#include "project/RowChecks.h"

namespace glossmill {

/// What an import does, one entry below the other, with what the checks find. What stays as it is is left out.
std::string importListing(const ImportPlan& plan, const RowChecks& checks, const Console& console);

/// The same as JSON, with everything: the members `entries` and `rejected`.
Json importJson(const ImportPlan& plan, const RowChecks& checks);

/// Says what somebody should know of the file as a whole. `file` as it was typed.
void mentionNotes(const ImportPlan& plan, const std::string& file, const std::string& language, Console& console);

/// Says which parts of the file were left out.
void mentionRejected(const ImportPlan& plan, Console& console);

}  // namespace glossmill
