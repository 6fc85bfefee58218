#pragma once

#include <QFileSystemWatcher>
#include <QTimer>

#include "platform/FileWatch.h"

namespace glossmill {

/// Watches by the system's own means.
class QtFileWatch : public FileWatch {
 public:
  QtFileWatch();
  void watch(const std::vector<FileUrl>& files) override;

 private:
  QFileSystemWatcher m_watcher;
  QTimer m_quiet;
};

}  // namespace glossmill
