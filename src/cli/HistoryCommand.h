#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `history DIR`: lists the saves that are kept and can be taken back.
void addHistoryCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
