#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `accept DIR KEY`: says that what checks find in a translation is all right.
void addAcceptCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
