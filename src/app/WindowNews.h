#pragma once

#include <optional>

#include "platform/Host.h"
#include "platform/NewsBoard.h"
#include "project/ProjectWindowController.h"
#include "safety/OpenWindows.h"

namespace glossmill {

/// Says that the project that was just opened is open in another window too, of whichever process. Main thread.
class WindowNews {
 public:
  /// All of it outlives this.
  WindowNews(const Host& host, ProjectWindowController& project, NewsBoard& board);
  WindowNews(const WindowNews&) = delete;
  WindowNews& operator=(const WindowNews&) = delete;

 private:
  void happened(ProjectMoment moment);
  void opened();

  const Host& m_host;
  ProjectWindowController& m_project;
  NewsBoard& m_board;
  std::optional<OpenWindows> m_windows;  ///< while a project is open
};

}  // namespace glossmill
