#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `status DIR`: the languages of a project and how much of each is missing.
void addStatusCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
