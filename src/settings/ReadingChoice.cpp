#include "settings/ReadingChoice.h"

#include "settings/AcceptedFindings.h"
#include "settings/ProjectSettings.h"

namespace glossmill {

namespace {

bool isPackage(FileReading& files, const FileUrl& url) {
  return url.pathExtension() == "xcodeproj" && files.kindOf(url.appending("project.pbxproj")) == EntryKind::File;
}

/// Those that are wished, else those of the settings.
Result<std::vector<FileUrl>> packagesOf(FileReading& files, const FileUrl& directory,
                                        const std::vector<std::string>& paths, const PathResolver& absolute) {
  std::vector<FileUrl> packages;
  for (const std::string& path : paths) {
    packages.push_back(absolute(path.starts_with('/') ? path : directory.path() + "/" + path));
    if (!isPackage(files, packages.back())) return Error{"there is no package \"" + path + "\""};
  }
  return packages;
}

}  // namespace

FileUrl projectDirectoryOf(FileReading& files, const FileUrl& opened) {
  return isPackage(files, opened) ? opened.parent() : opened;
}

Result<ReadingChoice> readingChoice(FileReading& files, const FileUrl& opened, const ReadingWish& wish,
                                    const PathResolver& absolute) {
  const FileUrl directory = projectDirectoryOf(files, opened);
  const bool opensPackage = !(directory == opened);
  const Result<ProjectSettings> settings = readProjectSettings(files, directory);
  if (!settings) return settings.error();
  ReadingChoice choice;
  choice.rules = wish.rules ? *wish.rules : settings.value().rules.value_or(wish.otherwiseRules);
  choice.settingsDirectory = directory;
  choice.directory = choice.rules == RuleSet::Xcode ? directory : opened;
  Result<std::vector<Acceptance>> accepted = readAcceptances(files, directory);
  if (!accepted) return accepted.error();
  choice.checks = settings.value().checks;
  choice.checks.accepted = std::move(accepted.value());
  choice.checks.sourceLanguage = settings.value().sourceLanguage;
  if (choice.rules == RuleSet::Classic) return choice;
  Result<std::vector<FileUrl>> packages =
      packagesOf(files, directory, wish.packages.empty() ? settings.value().packages : wish.packages, absolute);
  if (!packages) return packages.error();
  choice.xcode = {std::move(packages.value()), settings.value().exclude, settings.value().routines,
                  settings.value().sourceLanguage};
  if (opensPackage && wish.packages.empty()) choice.xcode.packages = {opened};
  return choice;
}

}  // namespace glossmill
