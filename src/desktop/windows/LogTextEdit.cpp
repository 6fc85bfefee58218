#include "desktop/windows/LogTextEdit.h"

#include <QFontDatabase>
#include <QScrollBar>
#include <QTextCursor>

#include "desktop/host/QtText.h"

namespace glossmill {

namespace {

constexpr int kLayoutInterval = 50;  // milliseconds

}  // namespace

LogTextEdit::LogTextEdit(QWidget* parent) : QPlainTextEdit(parent) {
  setReadOnly(true);
  setUndoRedoEnabled(false);
  setTabChangesFocus(true);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  m_timer.setSingleShot(true);
  m_timer.setInterval(kLayoutInterval);
  connect(&m_timer, &QTimer::timeout, this, [this] { layOut(); });
}

/// A text only grows at its end, unless it was emptied before: nothing is emptied and filled again between two calls.
void LogTextEdit::setString(std::string_view text) {
  if (text.size() < m_shown) {
    layOut();
    clear();
    m_shown = 0;
  }
  append(text.substr(m_shown));
  m_shown = text.size();
}

/// The document lays nothing out before the edit that was begun is ended.
void LogTextEdit::append(std::string_view text) {
  if (text.empty()) return;
  if (!std::exchange(m_waitsForLayout, true)) {
    m_end = QTextCursor(document());
    m_end.movePosition(QTextCursor::End);
    m_end.beginEditBlock();
    m_timer.start();
  }
  m_end.insertText(toQt(text));
}

void LogTextEdit::layOut() {
  if (!std::exchange(m_waitsForLayout, false)) return;
  m_timer.stop();
  const bool follow = isAtEnd();
  m_end.endEditBlock();
  if (follow) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

bool LogTextEdit::event(QEvent* event) {
  layOut();
  return QPlainTextEdit::event(event);
}

bool LogTextEdit::viewportEvent(QEvent* event) {
  layOut();
  return QPlainTextEdit::viewportEvent(event);
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
  layOut();
  if (text.isEmpty()) return false;
  if (find(text, flags)) return true;
  const QTextCursor before = textCursor();
  moveCursor(from);
  if (find(text, flags)) return true;
  setTextCursor(before);
  return false;
}

}  // namespace glossmill
