#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "platform/Files.h"
#include "platform/SaveDisk.h"

namespace glossmill {

/// Keeps other programs of ours from writing a project, from the first read to the last write of a command. The system
/// gives it back when the process ends, however it ends. Main thread.
class ProjectLock {
 public:
  /// Somebody else holds it: which process, where that is known.
  struct Held {
    std::optional<std::int64_t> by;
  };
  /// Says whether to try once more; called between two tries, and sleeps itself.
  using GoesOn = std::function<bool()>;

  /// Both disks outlive this.
  ProjectLock(Files& files, SaveDisk& disk, const FileUrl& project);
  ~ProjectLock();
  ProjectLock(const ProjectLock&) = delete;
  ProjectLock& operator=(const ProjectLock&) = delete;

  /// Nothing when the lock is held by this object now. A directory that cannot be locked is an error.
  Result<std::optional<Held>> acquire(const GoesOn& goesOn);
  /// The same, trying for as long as this; the thread sleeps meanwhile.
  Result<std::optional<Held>> acquire(std::chrono::steady_clock::duration patience);
  void release();
  bool isHeld() const { return m_lock != nullptr; }

 private:
  std::optional<FileUrl> holderFile();
  void noteHolder();
  std::optional<std::int64_t> holder();

  Files& m_files;
  SaveDisk& m_disk;
  FileUrl m_project;
  std::unique_ptr<DirectoryLock> m_lock;
};

}  // namespace glossmill
