#pragma once

#include <QPlainTextEdit>
#include <QTimer>
#include <string>

#include "platform/Controls.h"

namespace glossmill {

/// The log's read-only text. Lines that come quickly are drawn together, a few dozen milliseconds later; a search finds
/// them at once.
class LogTextEdit : public QPlainTextEdit, public LogTextView {
 public:
  explicit LogTextEdit(QWidget* parent = nullptr);

  void setString(const std::string& text) override;
  /// Brings the widget up to date at once.
  void flush();
  /// Selects the next or previous place of the text, round the end; false when there is none.
  bool findNext(const QString& text);
  bool findPrevious(const QString& text);

 private:
  bool findAround(const QString& text, QTextDocument::FindFlags flags, QTextCursor::MoveOperation from);
  bool isAtEnd() const;

  QTimer m_timer;
  const std::string* m_text = nullptr;
  std::size_t m_shown = 0;  ///< bytes of the text that are in the widget
  bool m_isOther = false;   ///< the widget holds a text that is gone
};

}  // namespace glossmill
