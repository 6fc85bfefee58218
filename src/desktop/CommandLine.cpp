#include "desktop/CommandLine.h"

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

CommandLine readCommandLine(int argumentCount, const char* const* arguments, const std::string& version) {
  CommandLine line;
  if (isGiven(argumentCount, arguments, "--help") || isGiven(argumentCount, arguments, "-h")) {
    line.answer = kUsage;
    return line;
  }
  if (isGiven(argumentCount, arguments, "--version")) {
    line.answer = "glossmill " + version + "\n";
    return line;
  }
  const auto directory = directoryArgument(argumentCount, arguments);
  if (!directory) return line;
  std::error_code error;
  const std::filesystem::path path = std::filesystem::canonical(*directory, error);
  if (error || !std::filesystem::is_directory(path, error)) {
    line.complaint = "glossmill: there is no directory " + std::string(*directory) + "\n";
    return line;
  }
  line.directory = FileUrl(path.string());
  return line;
}

}  // namespace glossmill
