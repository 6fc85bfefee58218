#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `save DIR`: rewrites the strings file of every language.
void addSaveCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
