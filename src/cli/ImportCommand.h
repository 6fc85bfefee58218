#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `import DIR FILE`: takes over what a translator filled in.
void addImportCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
