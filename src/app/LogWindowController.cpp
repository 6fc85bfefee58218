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
  m_logText.clear();
  m_messageEnds.clear();
}

void LogWindowController::logText(std::string_view text) {
  m_logText += text;
  m_logText += '\n';
  m_messageEnds.push_back(m_logText.size());
  updateTextView();
}

void LogWindowController::clearLog() {
  m_logText.clear();
  m_messageEnds.clear();
  updateTextView();
}

void LogWindowController::updateTextView() {
  if (m_interface.loaded) m_interface.outlets.textView->setString(m_logText);
}

std::string_view LogWindowController::message(std::size_t index) const {
  const std::size_t start = index == 0 ? 0 : m_messageEnds[index - 1];
  return std::string_view(m_logText).substr(start, m_messageEnds[index] - 1 - start);
}

}  // namespace glossmill
