#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/CheckSettings.h"
#include "model/ProjectOptions.h"
#include "platform/Files.h"

namespace glossmill {

/// What somebody asks for when a project is opened.
struct ReadingWish {
  std::optional<RuleSet> rules;               ///< before what the project's own file says
  std::vector<std::string> packages;          ///< from the project's directory; the same
  RuleSet otherwiseRules = RuleSet::Classic;  ///< where neither says anything
};

/// How a project is read in the end.
struct ReadingChoice {
  FileUrl directory;
  FileUrl settingsDirectory;  ///< the same, but for a package that was opened itself
  RuleSet rules = RuleSet::Classic;
  XcodeOptions xcode;
  CheckSettings checks;
};

/// The absolute form of a path.
using PathResolver = std::function<FileUrl(std::string_view)>;

/// The directory of a package that is opened itself; otherwise what is opened.
FileUrl projectDirectoryOf(FileReading& files, const FileUrl& opened);

/// What is wished comes first, then what the project's own settings file says. A package stands for its directory under
/// xcode's rules. An error is one whole sentence.
Result<ReadingChoice> readingChoice(FileReading& files, const FileUrl& opened, const ReadingWish& wish,
                                    const PathResolver& absolute);

}  // namespace glossmill
