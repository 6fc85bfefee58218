#pragma once

#include <optional>

#include "platform/CancelFlag.h"
#include "platform/Files.h"

namespace glossmill {

/// The first directory with the extension "xcodeproj" below `directory`, depth first in the order of the listings
/// (rule 1). Every directory on the way is searched; one that cannot be listed is passed over. Nothing after a cancel.
std::optional<FileUrl> findProjectPackage(FileReading& files, const FileUrl& directory, const CancelFlag& canceled);

}  // namespace glossmill
