#pragma once

#include <functional>
#include <vector>

#include "platform/FileUrl.h"

namespace glossmill {

/// Notices that somebody changes files. Main thread.
class FileWatch {
 public:
  virtual ~FileWatch() = default;
  /// Watches these files, whether they exist or not, and the directories that they lie in; nothing else from now on.
  virtual void watch(const std::vector<FileUrl>& files) = 0;

  /// Called when something was changed there and then nothing for a second.
  std::function<void()> changed;
};

}  // namespace glossmill
