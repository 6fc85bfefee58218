#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/CheckSettings.h"
#include "model/ProjectOptions.h"
#include "platform/Files.h"

namespace glossmill {

/// What the file `.glossmill.json` of a project says. docs/project-settings.md says what is taken.
struct ProjectSettings {
  std::optional<RuleSet> rules;
  std::vector<std::string> packages;  ///< from the project's directory
  std::vector<std::string> exclude;
  std::vector<std::string> routines;
  std::string sourceLanguage;
  CheckSettings checks = {};  ///< without the source language, and without what was accepted

  bool operator==(const ProjectSettings&) const = default;
};

inline constexpr std::string_view kProjectSettingsFile = ".glossmill.json";

/// An error is one sentence with line and, where one is at fault, key.
Result<ProjectSettings> parseProjectSettings(std::string_view text);

/// The text of the file, all keys that say something in it.
std::string projectSettingsText(const ProjectSettings& settings);

/// The text of a settings file with other rules and everything else as it stands; an error where it has a mistake, or
/// spells its keys in a way that this does not see through.
Result<std::string> settingsTextWithRules(std::string_view text, RuleSet rules);

/// The settings of the project in this directory; none where there is no file.
Result<ProjectSettings> readProjectSettings(FileReading& files, const FileUrl& directory);

}  // namespace glossmill
