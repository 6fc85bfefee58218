#include "desktop/LaunchArguments.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace glossmill {

namespace {

constexpr std::string_view kUsage =
    "Usage: glossmill [DIR]\n"
    "\n"
    "Opens the Xcode project in DIR, or asks for one.\n"
    "\n"
    "  --help     prints this text\n"
    "  --version  prints the version\n";

/// The first argument that is no option.
std::optional<std::string_view> directoryArgument(int argumentCount, const char* const* arguments) {
  for (int place = 1; place < argumentCount; ++place) {
    const std::string_view argument = arguments[place];
    if (!argument.starts_with('-')) return argument;
  }
  return std::nullopt;
}

bool isGiven(int argumentCount, const char* const* arguments, std::string_view option) {
  for (int place = 1; place < argumentCount; ++place) {
    if (arguments[place] == option) return true;
  }
  return false;
}

}  // namespace

LaunchArguments readLaunchArguments(int argumentCount, const char* const* arguments, const std::string& version) {
  LaunchArguments launch;
  if (isGiven(argumentCount, arguments, "--help") || isGiven(argumentCount, arguments, "-h")) {
    launch.answer = kUsage;
    return launch;
  }
  if (isGiven(argumentCount, arguments, "--version")) {
    launch.answer = "glossmill " + version + "\n";
    return launch;
  }
  const auto directory = directoryArgument(argumentCount, arguments);
  if (!directory) return launch;
  std::error_code error;
  const std::filesystem::path path = std::filesystem::canonical(*directory, error);
  if (error || !std::filesystem::is_directory(path, error)) {
    launch.complaint = "glossmill: there is no directory " + std::string(*directory) + "\n";
    return launch;
  }
  launch.directory = FileUrl(path.string());
  return launch;
}

}  // namespace glossmill
