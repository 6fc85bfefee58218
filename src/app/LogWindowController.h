#pragma once

#include <cstddef>
#include <string_view>

#include "platform/Host.h"
#include "text/MessageList.h"

namespace glossmill {

/// What stays of a log: all of it where it can be looked at, nothing where messages are only passed on.
enum class KeptLog { Whole, Nothing };

/// The log window: every message for the user that is not an alert, a line feed after each. Main thread.
class LogWindowController {
 public:
  explicit LogWindowController(const Host& host, KeptLog kept = KeptLog::Whole) : m_host(host), m_kept(kept) {}

  /// Loads the window on first use, which starts the log empty, and brings it to the front.
  void showWindow();
  void windowDidLoad();
  void logText(const Message& message);
  void clearLog();
  /// Gives the text view the whole log.
  void updateTextView();

  /// What is kept of the log; valid until it changes.
  std::string_view logText() const { return m_log.text(); }
  std::size_t messageCount() const { return m_log.count(); }
  /// Without its final line feed; valid until the log changes.
  std::string_view message(std::size_t index) const { return m_log.message(index); }

 private:
  Host m_host;
  Interface<LogWindowOutlets> m_interface;
  const KeptLog m_kept;
  MessageList m_log;
};

}  // namespace glossmill
