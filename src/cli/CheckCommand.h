#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `check DIR`: whether languages are complete, for scripts and build servers.
void addCheckCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
