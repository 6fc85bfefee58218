#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `set DIR KEY TEXT`: writes one translation.
void addSetCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
