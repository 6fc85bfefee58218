#pragma once

#include <functional>
#include <optional>

#include "platform/CancelFlag.h"
#include "platform/Files.h"

namespace glossmill {

/// The first directory with the extension "xcodeproj" below `directory`, depth first in the order of the listings
/// (rule 1). Every directory on the way is searched; one that cannot be listed is passed over. Nothing after a cancel.
/// When too many directories were entered through links, `cutOff` gets the first that was left out.
std::optional<FileUrl> findProjectPackage(FileReading& files, const FileUrl& directory, const CancelFlag& canceled,
                                          const std::function<void(const FileUrl&)>& cutOff = nullptr);

}  // namespace glossmill
