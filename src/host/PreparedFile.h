#pragma once

#include <memory>

#include "platform/SaveDisk.h"

namespace glossmill {

/// SaveDisk::prepare() on a POSIX disk. Permissions, extended attributes and, where the system allows it, the owner of
/// the former file are taken over.
Result<std::unique_ptr<PreparedWrite>> prepareFile(const FileUrl& file, const BytePieces& bytes,
                                                   const WriteLimits& limits);

/// Follows the links that the last part of `path` stands for; a link to nothing leads to the name it gives.
Result<FileUrl> followLinks(FileUrl path);

/// The process that a temporary file of prepareFile() belongs to, by its name; 0 for any other name.
long temporaryFileOwner(std::string_view name);

}  // namespace glossmill
