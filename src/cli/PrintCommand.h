#pragma once

#include "cli/TypedCommand.h"
#include "cli/shell/ManPage.h"

namespace glossmill {

/// `print WHAT`, which no help shows: the completions and the manual page that belong to the program. `program`
/// outlives the command.
void addPrintCommand(CLI::App& program, TypedCommand& typed, const std::vector<ExitCodeText>& exitCodes);

}  // namespace glossmill
