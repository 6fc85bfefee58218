#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/BytePieces.h"
#include "platform/FileStamp.h"
#include "platform/FileUrl.h"
#include "platform/Files.h"
#include "text/Result.h"

namespace glossmill {

/// A new content for a file, which already lies on the disk beside it and only has to take its place. One directory
/// that was opened and looked at serves all of it, so that a link which is swapped in meanwhile leads nowhere. Goes
/// away with this object unless it was put in place or is kept.
class PreparedWrite {
 public:
  virtual ~PreparedWrite() = default;
  /// The file that is really meant, all links followed; it need not exist yet.
  virtual const FileUrl& target() const = 0;
  virtual const FileUrl& temporary() const = 0;
  /// The former file; nothing when there is none.
  virtual const std::optional<FileStamp>& former() const = 0;
  /// Renames it over the target and flushes the directory.
  virtual Outcome putInPlace() = 0;
};

/// Where and how a file may be written.
struct WriteLimits {
  FileUrl within;                          ///< an error of kind Outside for anything not below; empty: anywhere
  std::optional<std::uint32_t> modeIfNew;  ///< permissions of a file that is not there yet
};

/// A lock on a directory that ends with this object or with the process.
class DirectoryLock {
 public:
  virtual ~DirectoryLock() = default;
};

/// A private file that grows at its end. One thread at a time.
class GrowingFile {
 public:
  virtual ~GrowingFile() = default;
  /// Appends the bytes and flushes them to the disk.
  virtual Outcome append(std::string_view bytes) = 0;
};

/// What saving needs of a disk beyond reading it. Called from the main thread, but for what the journal needs.
class SaveDisk {
 public:
  virtual ~SaveDisk() = default;

  /// Where all the links of a path lead; what does not exist keeps its name.
  virtual Result<FileUrl> resolve(const FileUrl& url) = 0;
  /// Of the file that the path leads to; nothing when there is none. Any thread.
  virtual Result<std::optional<FileStamp>> stampOf(const FileUrl& file) = 0;
  /// Writes the pieces beside the file and flushes them. An error of the pieces is passed on, and nothing is left.
  virtual Result<std::unique_ptr<PreparedWrite>> prepare(const FileUrl& file, const BytePieces& bytes,
                                                         const WriteLimits& limits) = 0;
  /// Creates a directory, and those above it where asked to; like prepare() only within `limits`.
  virtual Outcome createDirectory(const FileUrl& directory, bool intermediate, const WriteLimits& limits) = 0;

  /// Temporary files of prepare() in this directory whose process has ended.
  virtual std::vector<FileUrl> abandonedWrites(const FileUrl& directory) = 0;
  /// Renames one file over another of the same directory, and flushes that.
  virtual Outcome rename(const FileUrl& from, const FileUrl& to) = 0;
  /// Removes a file or an empty directory; what is not there is no error.
  virtual Outcome remove(const FileUrl& url) = 0;

  /// The directory for what the program keeps of projects, which nobody else may look into; an error where there is
  /// none.
  virtual Result<FileUrl> stateDirectory() = 0;
  /// Creates a directory for the owner's eyes only, and those above it.
  virtual Outcome createPrivateDirectory(const FileUrl& directory) = 0;
  /// Writes a file for the owner's eyes only, whole or not at all. Any thread.
  virtual Outcome writePrivate(const FileUrl& file, const BytePieces& bytes) = 0;
  /// Opens a file for the owner's eyes only to append to it, making it and its directory where there is none. Any
  /// thread.
  virtual Result<std::unique_ptr<GrowingFile>> openGrowing(const FileUrl& file) = 0;

  /// Nothing while somebody else holds it.
  virtual Result<std::unique_ptr<DirectoryLock>> tryLock(const FileUrl& directory) = 0;
  virtual std::int64_t processId() const = 0;
  /// Seconds since 1970, UTC. Any thread.
  virtual std::int64_t now() const = 0;
};

}  // namespace glossmill
