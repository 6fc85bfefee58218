#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Files.h"
#include "platform/SaveDisk.h"

namespace glossmill {

/// Notes in the state directory that a window shows a project, and finds the others that do. Each has a directory there
/// that it keeps locked: the system gives that back when its process ends, however it ends. Main thread.
class OpenWindows {
 public:
  /// Both disks outlive this.
  OpenWindows(Files& files, SaveDisk& disk, const FileUrl& project);
  ~OpenWindows() { leave(); }
  OpenWindows(const OpenWindows&) = delete;
  OpenWindows& operator=(const OpenWindows&) = delete;

  /// Notes this window. Without a place to note it in nobody hears of it.
  void enter();
  void leave();
  /// The processes of the other windows. What is left of ended ones is removed.
  std::vector<std::int64_t> others();

 private:
  std::optional<FileUrl> directory();
  bool isOpen(const FileUrl& window);

  Files& m_files;
  SaveDisk& m_disk;
  FileUrl m_project;
  FileUrl m_own;  ///< empty before enter()
  std::unique_ptr<DirectoryLock> m_lock;
};

}  // namespace glossmill
