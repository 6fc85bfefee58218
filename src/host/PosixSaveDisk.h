#pragma once

#include "platform/SaveDisk.h"

namespace glossmill {

/// Saving on the disk of a POSIX system. Keeps nothing but the place of its state directory.
class PosixSaveDisk : public SaveDisk {
 public:
  /// The state directory is that of the environment: XDG_STATE_HOME, else .local/state in the home directory.
  PosixSaveDisk();

  Result<FileUrl> resolve(const FileUrl& url) override;
  Result<std::optional<FileStamp>> stampOf(const FileUrl& file) override;
  Result<std::unique_ptr<PreparedWrite>> prepare(const FileUrl& file, const BytePieces& bytes,
                                                 const WriteLimits& limits) override;
  Outcome createDirectory(const FileUrl& directory, bool intermediate, const WriteLimits& limits) override;
  std::vector<FileUrl> abandonedWrites(const FileUrl& directory) override;
  Outcome rename(const FileUrl& from, const FileUrl& to) override;
  Outcome remove(const FileUrl& url) override;
  Result<FileUrl> stateDirectory() override;
  Outcome createPrivateDirectory(const FileUrl& directory) override;
  Outcome writePrivate(const FileUrl& file, const BytePieces& bytes) override;
  Result<std::unique_ptr<GrowingFile>> openGrowing(const FileUrl& file) override;
  Result<std::unique_ptr<DirectoryLock>> tryLock(const FileUrl& directory) override;
  std::int64_t processId() const override;
  std::int64_t now() const override;

 private:
  FileUrl m_stateDirectory;  ///< empty where the environment names none
};

}  // namespace glossmill
