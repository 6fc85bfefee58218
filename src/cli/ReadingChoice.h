#pragma once

#include "cli/ProjectChoice.h"
#include "model/ProjectOptions.h"
#include "platform/Files.h"

namespace glossmill {

/// How a project is read in the end.
struct ReadingChoice {
  FileUrl directory;
  RuleSet rules = RuleSet::Classic;
  XcodeOptions xcode;
};

/// What was typed comes first, then what the project's own settings file says, then the classic rules. A package stands
/// for its directory under xcode's rules. An error is one whole sentence.
Result<ReadingChoice> readingChoice(Files& files, const FileUrl& opened, const ProjectChoice& typed);

}  // namespace glossmill
