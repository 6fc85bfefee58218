#include "desktop/LaunchArguments.h"

#include <filesystem>
#include <span>
#include <string_view>
#include <system_error>

namespace glossmill {

namespace {

using Arguments = std::span<const char* const>;

constexpr std::string_view kUsage =
    "Usage: glossmill [--rules RULES] [DIR]\n"
    "\n"
    "Opens the Xcode project in DIR, or asks for one. DIR may be the project's package.\n"
    "\n"
    "  --rules RULES  reads projects by these rules, classic or xcode, whatever they\n"
    "                 say themselves, until others are chosen in the window\n"
    "  --help         prints this text\n"
    "  --version      prints the version\n";

constexpr std::string_view kRules = "--rules";

/// The first argument that is no option.
std::optional<std::string_view> directoryArgument(Arguments arguments) {
  for (std::size_t place = 0; place < arguments.size(); ++place) {
    const std::string_view argument = arguments[place];
    if (argument == kRules) {
      ++place;
    } else if (!argument.starts_with('-')) {
      return argument;
    }
  }
  return std::nullopt;
}

/// The value of the last option of that name, as "--rules xcode" or "--rules=xcode"; empty for one without.
std::optional<std::string_view> rulesArgument(Arguments arguments) {
  std::optional<std::string_view> value;
  for (std::size_t place = 0; place < arguments.size(); ++place) {
    const std::string_view argument = arguments[place];
    const bool joined = argument.starts_with("--rules=");
    if (joined) value = argument.substr(kRules.size() + 1);
    if (argument == kRules) value = ++place < arguments.size() ? arguments[place] : "";
  }
  return value;
}

bool isGiven(Arguments arguments, std::string_view option) {
  for (const std::string_view argument : arguments) {
    if (argument == option) return true;
  }
  return false;
}

void takeRules(Arguments arguments, LaunchArguments& launch) {
  const auto value = rulesArgument(arguments);
  if (!value) return;
  if (*value == "classic") launch.rules = RuleSet::Classic;
  if (*value == "xcode") launch.rules = RuleSet::Xcode;
  if (!launch.rules) launch.complaint = "glossmill: --rules takes classic or xcode\n";
}

void takeDirectory(Arguments arguments, LaunchArguments& launch) {
  const auto directory = directoryArgument(arguments);
  if (!directory) return;
  std::error_code error;
  const std::filesystem::path path = std::filesystem::canonical(*directory, error);
  if (error || !std::filesystem::is_directory(path, error)) {
    launch.complaint += "glossmill: there is no directory " + std::string(*directory) + "\n";
    return;
  }
  launch.directory = FileUrl(path.string());
}

}  // namespace

LaunchArguments readLaunchArguments(int argumentCount, const char* const* arguments, const std::string& version) {
  LaunchArguments launch;
  const Arguments all(arguments + 1, static_cast<std::size_t>(argumentCount > 0 ? argumentCount - 1 : 0));
  if (isGiven(all, "--help") || isGiven(all, "-h")) {
    launch.answer = kUsage;
  } else if (isGiven(all, "--version")) {
    launch.answer = "glossmill " + version + "\n";
  } else {
    takeRules(all, launch);
    takeDirectory(all, launch);
  }
  return launch;
}

}  // namespace glossmill
