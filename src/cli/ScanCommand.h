#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `scan DIR`: what a project holds, as a summary or as JSON.
void addScanCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
