#pragma once

#include <functional>

#include "model/ProjectOptions.h"
#include "text/Result.h"

namespace glossmill {

/// A directory, and how it is read.
struct ProjectOpening {
  FileUrl directory;
  ProjectOptions options;
};

/// What a project itself says of how it is to be read, beside what is wanted.
using SettingsReader = std::function<Result<ProjectOpening>(const ProjectOpening& wanted)>;

}  // namespace glossmill
