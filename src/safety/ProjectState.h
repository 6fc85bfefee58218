#pragma once

#include "platform/SaveDisk.h"

namespace glossmill {

/// Where the program keeps what it knows of a project: its saved versions, its journal, who writes it. The same for
/// every way that leads to the project's directory. It need not exist yet.
Result<FileUrl> stateDirectoryOf(SaveDisk& disk, const FileUrl& project);

}  // namespace glossmill
