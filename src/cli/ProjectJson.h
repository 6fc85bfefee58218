#pragma once

#include "cli/ProjectSession.h"

namespace glossmill {

/// Prints everything that the scan found as one JSON document, one file, language, string or log line a line.
void printProjectJson(const ProjectSession& session);

}  // namespace glossmill
