#pragma once

#include "cli/CommandLine.h"

namespace glossmill {

/// `export DIR`: one language as a text file for a translator.
void addExportCommand(CLI::App& program, CommandLine& line);

}  // namespace glossmill
