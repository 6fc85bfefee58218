#pragma once

#include <QPlainTextEdit>
#include <QTextCursor>
#include <QTimer>
#include <string>
#include <string_view>

#include "platform/Controls.h"

namespace glossmill {

/// The log's read-only text. Every line is in the document at once, for whoever reads that. Lines that come quickly are
/// laid out together, a few dozen milliseconds later or before the widget does anything with them: paints, scrolls,
/// selects, finds.
class LogTextEdit : public QPlainTextEdit, public LogTextView {
 public:
  explicit LogTextEdit(QWidget* parent = nullptr);

  void setString(std::string_view text) override;
  /// Selects the next or previous place of the text, round the end; false when there is none.
  bool findNext(const QString& text);
  bool findPrevious(const QString& text);

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  void append(std::string_view text);
  void layOut();
  bool findAround(const QString& text, QTextDocument::FindFlags flags, QTextCursor::MoveOperation from);
  bool isAtEnd() const;

  QTimer m_timer;
  QTextCursor m_end;              ///< where lines are added
  std::size_t m_shown = 0;        ///< bytes of the log that are in the document
  bool m_waitsForLayout = false;  ///< lines were added that are not laid out yet
};

}  // namespace glossmill
