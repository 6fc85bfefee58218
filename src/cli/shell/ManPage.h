#pragma once

#include <string>
#include <string_view>

#include "cli/shell/CommandTree.h"

namespace glossmill {

/// What an exit code says, for the help and the manual.
struct ExitCodeText {
  std::string_view code;
  std::string_view meaning;
};

/// The manual page of the program, in the language of man.
std::string manPage(const CommandTree& tree, const std::vector<ExitCodeText>& exitCodes, std::string_view version);

}  // namespace glossmill
