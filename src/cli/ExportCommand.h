#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `export DIR`: one language as a text file for a translator.
void addExportCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
