#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `recover DIR`: the edits that the window left unsaved when it ended, to be listed, applied or discarded.
void addRecoverCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
