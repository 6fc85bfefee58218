#pragma once

#include "cli/CommandLine.h"

namespace glossmill {

/// `check DIR`: whether languages are complete, for scripts and build servers.
void addCheckCommand(CLI::App& program, CommandLine& line);

}  // namespace glossmill
