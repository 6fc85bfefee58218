#pragma once

#include "cli/TypedCommand.h"

namespace glossmill {

/// `add-language DIR CODE`: a language that the project does not have yet.
void addAddLanguageCommand(CLI::App& program, TypedCommand& typed);

}  // namespace glossmill
