#include "settings/SettledOptions.h"

#include "settings/ProjectSettings.h"

namespace glossmill {

Result<ProjectOptions> settledOptions(FileReading& files, const FileUrl& directory, ProjectOptions options) {
  Result<ProjectSettings> read = readProjectSettings(files, directory);
  if (!read) return read.error();
  ProjectSettings& settings = read.value();
  options.rules = settings.rules.value_or(options.rules);
  if (options.rules == RuleSet::Classic) return options;
  options.xcode = {{}, std::move(settings.exclude), std::move(settings.routines), std::move(settings.sourceLanguage)};
  for (const std::string& path : settings.packages) {
    options.xcode.packages.push_back(path.starts_with('/') ? FileUrl(path) : directory.appending(path));
  }
  return options;
}

}  // namespace glossmill
