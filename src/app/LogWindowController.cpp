#include "app/LogWindowController.h"

namespace glossmill {

void LogWindowController::showWindow() {
  if (!m_interface.loaded) {
    m_interface = m_host.interfaces.loadLogWindow(*this);
    windowDidLoad();
  }
  m_interface.outlets.window->show();
}

void LogWindowController::windowDidLoad() {
  m_log.clear();
}

void LogWindowController::logText(const Message& message) {
  if (m_kept == KeptLog::Nothing) return;
  m_log.add(message);
  updateTextView();
}

void LogWindowController::clearLog() {
  m_log.clear();
  updateTextView();
}

void LogWindowController::updateTextView() {
  if (m_interface.loaded) m_interface.outlets.textView->setString(m_log.text());
}

}  // namespace glossmill
