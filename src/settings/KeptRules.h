#pragma once

#include "model/ProjectOptions.h"
#include "platform/Host.h"

namespace glossmill {

/// Keeps by which rules a project is read: in its own settings file where there is one, so that everybody reads alike,
/// otherwise in the settings of the application. `directory` is the project's or that of a package that is opened
/// itself; `options` are those that it was opened with. The settings file is written like every file of a project, with
/// the former text kept and nothing of others overwritten. An error is one whole sentence.
Outcome keepRules(const Host& host, const FileUrl& directory, const ProjectOptions& options, RuleSet rules);

}  // namespace glossmill
