#pragma once

#include <optional>
#include <string>

#include "platform/FileUrl.h"

namespace glossmill {

/// What the program was started with. An answer or a complaint is to be printed, and no window opens.
struct CommandLine {
  std::optional<FileUrl> directory;
  std::string answer;     ///< for the standard output
  std::string complaint;  ///< for the standard error stream
};

/// Reads the arguments as the system gave them; options of the toolkit are left to the toolkit.
CommandLine readCommandLine(int argumentCount, const char* const* arguments, const std::string& version);

}  // namespace glossmill
