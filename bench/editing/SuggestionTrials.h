#pragma once

#include "project/ProjectWindowController.h"

namespace glossmill::bench {

/// Gathers the source texts of the open project, as is done in the background, and asks for suggestions as often as a
/// person goes to another row.
void runSuggestionTrials(const ProjectWindowController& project, int rounds);

}  // namespace glossmill::bench
