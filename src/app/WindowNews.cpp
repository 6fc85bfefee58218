#include "app/WindowNews.h"

#include "text/Format.h"

namespace glossmill {

WindowNews::WindowNews(const Host& host, ProjectWindowController& project, NewsBoard& board)
    : m_host(host), m_project(project), m_board(board) {
  m_project.observers().add([this](ProjectMoment moment) { happened(moment); });
}

void WindowNews::happened(ProjectMoment moment) {
  if (moment == ProjectMoment::Opened) opened();
  if (moment == ProjectMoment::Closed) m_windows.reset();
}

/// The window is noted before it looks for others, so that of two that open at once one at least hears of the other.
void WindowNews::opened() {
  m_windows.emplace(m_host.files, m_host.saves, m_project.projectDirectory());
  m_windows->enter();
  const std::vector<std::int64_t> others = m_windows->others();
  if (others.empty()) return;
  const std::string text = m_host.bundle.localizedString("This project is open in another window too (process %ld)");
  m_board.post({"another window", formatText(text, {others.front()}), {}, NewsKind::Note});
}

}  // namespace glossmill
