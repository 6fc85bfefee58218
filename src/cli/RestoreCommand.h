#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `restore DIR`: brings back what files held before a save, or finishes a save that was cut short.
void addRestoreCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
