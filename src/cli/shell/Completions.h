#pragma once

#include <string>

#include "cli/shell/CommandTree.h"

namespace glossmill {

// Scripts that complete what is typed at a shell: commands, options, their values, directories and files, and the
// languages of the project that was typed.

std::string bashCompletion(const CommandTree& tree);
std::string zshCompletion(const CommandTree& tree);
std::string fishCompletion(const CommandTree& tree);

/// In single quotes for any of these shells.
std::string shellQuoted(std::string_view text);

/// The words with `separator` between.
std::string joined(const std::vector<std::string>& words, std::string_view separator);

}  // namespace glossmill
