#pragma once

#include <string>

#include "cli/JsonWriter.h"
#include "cli/ProjectSession.h"

namespace glossmill {

/// What the scan left out, as lines for the end of a summary: how much, and the names of what was not read. Empty when
/// it left out nothing.
std::string leftOutSummary(const ProjectSession& session);

/// The same by file, as a table.
std::string leftOutTable(const ProjectSession& session);

/// One file or directory of which something was left out.
Json leftOutJson(const ProjectSession& session, const FileFindings& file);

}  // namespace glossmill
