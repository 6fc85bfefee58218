#pragma once

#include "cli/CommandLine.h"

namespace glossmill {

/// `import DIR FILE`: takes over what a translator filled in.
void addImportCommand(CLI::App& program, CommandLine& line);

}  // namespace glossmill
