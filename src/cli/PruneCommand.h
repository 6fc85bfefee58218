#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `prune DIR`: takes the entries out that nothing uses.
void addPruneCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
