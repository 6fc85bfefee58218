#pragma once

#include "cli/CommandLine.h"

namespace glossmill {

/// `save DIR`: rewrites the strings file of every language.
void addSaveCommand(CLI::App& program, CommandLine& line);

}  // namespace glossmill
