#pragma once

#include "model/ProjectOptions.h"
#include "platform/Files.h"

namespace glossmill {

/// The options with which a project is opened, after what its own settings file says of rules, packages, routines and
/// languages. Where there is no file they stay as they are. An error is one sentence.
Result<ProjectOptions> settledOptions(FileReading& files, const FileUrl& directory, ProjectOptions options);

}  // namespace glossmill
