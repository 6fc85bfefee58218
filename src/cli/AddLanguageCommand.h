#pragma once

#include "cli/CommandLine.h"

namespace glossmill {

/// `add-language DIR CODE`: a language that the project does not have yet.
void addAddLanguageCommand(CLI::App& program, CommandLine& line);

}  // namespace glossmill
