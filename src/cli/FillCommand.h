#pragma once

#include "cli/CommandLine.h"

namespace glossmill {

/// `fill DIR`: gives every missing entry of a language its key as translation.
void addFillCommand(CLI::App& program, CommandLine& line);

}  // namespace glossmill
