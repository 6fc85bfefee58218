#pragma once

#include "cli/CommandLine.h"

namespace glossmill {

/// `scan DIR`: what a project holds, as a summary or as JSON.
void addScanCommand(CLI::App& program, CommandLine& line);

}  // namespace glossmill
