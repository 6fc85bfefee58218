#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `init DIR`: writes the settings of a project, as far as they can be found out.
void addInitCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
