#pragma once

#include <optional>
#include <string>

#include "model/ProjectOptions.h"
#include "platform/FileUrl.h"

namespace glossmill {

/// What the program was started with. An answer or a complaint is to be printed, and no window opens.
struct LaunchArguments {
  std::optional<FileUrl> directory;
  std::optional<RuleSet> rules;
  std::string answer;     ///< for the standard output
  std::string complaint;  ///< for the standard error stream
};

/// Reads the arguments as the system gave them; options of the toolkit are left to the toolkit.
LaunchArguments readLaunchArguments(int argumentCount, const char* const* arguments, const std::string& version);

}  // namespace glossmill
