#pragma once

#include "cli/JsonWriter.h"
#include "cli/ProjectSession.h"

namespace glossmill {

// What the JSON of a project has in addition under xcode's rules.

/// Rules, packages, tables and problems.
void writeTables(const ProjectSession& session, JsonWriter& writer);

/// Adds what is known of a string to its other members.
void addTableRow(const ProjectSession& session, const TableRow& row, Json& string);

}  // namespace glossmill
