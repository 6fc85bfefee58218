#include "desktop/windows/LogTextEdit.h"

#include <QFontDatabase>
#include <QScrollBar>
#include <QTextCursor>

#include "desktop/host/QtText.h"

namespace glossmill {

namespace {

constexpr int kFlushInterval = 50;  // milliseconds

}  // namespace

LogTextEdit::LogTextEdit(QWidget* parent) : QPlainTextEdit(parent) {
  setReadOnly(true);
  setUndoRedoEnabled(false);
  setTabChangesFocus(true);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  m_timer.setSingleShot(true);
  m_timer.setInterval(kFlushInterval);
  connect(&m_timer, &QTimer::timeout, this, [this] { flush(); });
}

/// A text only grows at its end, unless it was emptied before.
void LogTextEdit::setString(const std::string& text) {
  m_text = &text;
  if (text.size() < m_shown) m_isOther = true;
  if (m_isOther) m_shown = 0;
  if (!m_timer.isActive()) m_timer.start();
}

void LogTextEdit::flush() {
  if (!m_text || (!m_isOther && m_shown == m_text->size())) return;
  m_timer.stop();
  const bool follow = isAtEnd();
  if (std::exchange(m_isOther, false)) clear();
  QTextCursor end(document());
  end.movePosition(QTextCursor::End);
  end.insertText(toQt(std::string_view(*m_text).substr(m_shown)));
  m_shown = m_text->size();
  if (follow) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

bool LogTextEdit::isAtEnd() const {
  return verticalScrollBar()->value() == verticalScrollBar()->maximum();
}

bool LogTextEdit::findNext(const QString& text) {
  return findAround(text, {}, QTextCursor::Start);
}

bool LogTextEdit::findPrevious(const QString& text) {
  return findAround(text, QTextDocument::FindBackward, QTextCursor::End);
}

bool LogTextEdit::findAround(const QString& text, QTextDocument::FindFlags flags, QTextCursor::MoveOperation from) {
  flush();
  if (text.isEmpty()) return false;
  if (find(text, flags)) return true;
  const QTextCursor before = textCursor();
  moveCursor(from);
  if (find(text, flags)) return true;
  setTextCursor(before);
  return false;
}

}  // namespace glossmill
