#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Host.h"

namespace glossmill {

/// The log window: every message for the user that is not an alert, a line feed after each. Main thread.
class LogWindowController {
 public:
  explicit LogWindowController(const Host& host) : m_host(host) {}

  /// Loads the window on first use, which starts the log empty, and brings it to the front.
  void showWindow();
  void windowDidLoad();
  void logText(std::string_view text);
  void clearLog();
  /// Gives the text view the whole log.
  void updateTextView();

  const std::string& logText() const { return m_logText; }
  std::size_t messageCount() const { return m_messageEnds.size(); }
  /// Without its final line feed; valid until the log changes.
  std::string_view message(std::size_t index) const;

 private:
  Host m_host;
  Interface<LogWindowOutlets> m_interface;
  std::string m_logText;
  std::vector<std::size_t> m_messageEnds;  ///< places behind the final line feeds in m_logText
};

}  // namespace glossmill
