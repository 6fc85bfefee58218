#pragma once

#include <string>

#include "platform/FileWatch.h"
#include "platform/Host.h"
#include "platform/NewsBoard.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// Says that others have changed strings files or the project file of the open project since they were read or written
/// here, and offers to read it anew. Main thread.
class OutsideNews {
 public:
  /// All of it outlives this.
  OutsideNews(const Host& host, ProjectWindowController& project, NewsBoard& board, FileWatch& watch);
  ~OutsideNews() { m_watch.changed = nullptr; }
  OutsideNews(const OutsideNews&) = delete;
  OutsideNews& operator=(const OutsideNews&) = delete;

  /// Compares the files with the disk.
  void lookAround();

 private:
  void happened(ProjectMoment moment);
  void watchFiles();
  void tell(const std::vector<std::string>& changed);
  std::string localized(std::string_view key) const { return m_host.bundle.localizedString(key); }

  const Host& m_host;
  ProjectWindowController& m_project;
  NewsBoard& m_board;
  FileWatch& m_watch;
  std::string m_told;  ///< the files as they were when the news was posted last, so that it comes once
};

}  // namespace glossmill
