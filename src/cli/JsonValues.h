#pragma once

#include <vector>

#include "cli/JsonWriter.h"
#include "cli/ProjectSession.h"

namespace glossmill {

/// The path below the project directory, "." for the directory itself.
Json jsonPath(const ProjectSession& session, const FileUrl& url);

/// The paths of source files.
Json filesJson(const ProjectSession& session, const std::vector<FileUrl>& files);

/// The path of the project's package, or null.
Json packageJson(const ProjectSession& session);

Json languageJson(const ProjectSession& session, const Language& language);

}  // namespace glossmill
