#pragma once

#include "platform/Files.h"

namespace glossmill {

/// The disk of a POSIX system. Stateless, so any thread may use any part of it.
class PosixFiles : public Files {
 public:
  Result<std::vector<DirectoryEntry>> list(const FileUrl& directory) override;
  EntryKind kindOf(const FileUrl& url) override;
  std::optional<FileIdentity> identityOf(const FileUrl& url) override;
  /// Only regular files open: a directory, pipe or device is an error at once.
  Result<std::unique_ptr<ByteReader>> open(const FileUrl& file) override;
  Outcome createDirectory(const FileUrl& directory, bool intermediate) override;
  Outcome writeText(const FileUrl& file, std::string_view text) override;
  Outcome writeTextPieces(const FileUrl& file, const TextPieces& next) override;
};

}  // namespace glossmill
