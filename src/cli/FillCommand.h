#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `fill DIR`: gives every missing entry of a language its key as translation.
void addFillCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
