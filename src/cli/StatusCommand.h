#pragma once

#include "cli/CommandLine.h"

namespace glossmill {

/// `status DIR`: the languages of a project and how much of each is missing.
void addStatusCommand(CLI::App& program, CommandLine& line);

}  // namespace glossmill
