#include "cli/ReadingChoice.h"

#include "cli/DisplayText.h"
#include "cli/Paths.h"
#include "settings/ProjectSettings.h"

namespace glossmill {

namespace {

bool isPackage(Files& files, const FileUrl& url) {
  return url.pathExtension() == "xcodeproj" && files.kindOf(url.appending("project.pbxproj")) == EntryKind::File;
}

FileUrl packageUrl(const FileUrl& directory, const std::string& path) {
  return absoluteUrl(path.starts_with('/') ? path : directory.path() + "/" + path);
}

/// Those that were typed, else those of the settings.
Result<std::vector<FileUrl>> packagesOf(Files& files, const FileUrl& directory, const ProjectChoice& typed,
                                        const ProjectSettings& settings) {
  std::vector<FileUrl> packages;
  for (const std::string& path : typed.packages.empty() ? settings.packages : typed.packages) {
    packages.push_back(packageUrl(directory, path));
    if (!isPackage(files, packages.back())) return Error{"there is no package " + inQuotes(path)};
  }
  return packages;
}

RuleSet rulesOf(const ProjectChoice& typed, const ProjectSettings& settings) {
  if (!typed.rules.empty()) return typed.rules == "xcode" ? RuleSet::Xcode : RuleSet::Classic;
  return settings.rules.value_or(RuleSet::Classic);
}

}  // namespace

Result<ReadingChoice> readingChoice(Files& files, const FileUrl& opened, const ProjectChoice& typed) {
  const bool opensPackage = isPackage(files, opened);
  const FileUrl directory = opensPackage ? opened.parent() : opened;
  const Result<ProjectSettings> settings = readProjectSettings(files, directory);
  if (!settings) return settings.error();
  ReadingChoice choice;
  choice.rules = rulesOf(typed, settings.value());
  choice.directory = choice.rules == RuleSet::Xcode ? directory : opened;
  if (choice.rules == RuleSet::Classic) return choice;
  Result<std::vector<FileUrl>> packages = packagesOf(files, directory, typed, settings.value());
  if (!packages) return packages.error();
  choice.xcode = {std::move(packages.value()), settings.value().exclude, settings.value().routines,
                  settings.value().sourceLanguage};
  if (opensPackage && typed.packages.empty()) choice.xcode.packages = {opened};
  return choice;
}

}  // namespace glossmill
