#include "desktop/look/FocusEditing.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace glossmill {

namespace {

bool canEditText(const QPlainTextEdit& text, CommandId command) {
  const bool writable = !text.isReadOnly();
  switch (command) {
    case CommandId::Undo:
      return writable && text.document()->isUndoAvailable();
    case CommandId::Redo:
      return writable && text.document()->isRedoAvailable();
    case CommandId::Cut:
      return writable && text.textCursor().hasSelection();
    case CommandId::Copy:
      return text.textCursor().hasSelection();
    case CommandId::Paste:
      return writable && text.canPaste();
    default:
      return command == CommandId::SelectAll;
  }
}

bool canEditLine(const QLineEdit& line, CommandId command) {
  switch (command) {
    case CommandId::Undo:
      return line.isUndoAvailable();
    case CommandId::Redo:
      return line.isRedoAvailable();
    case CommandId::Cut:
    case CommandId::Copy:
      return line.hasSelectedText();
    case CommandId::Paste:
      return !QApplication::clipboard()->text().isEmpty();
    default:
      return command == CommandId::SelectAll;
  }
}

template <typename TextWidget>
void editIn(TextWidget& widget, CommandId command) {
  switch (command) {
    case CommandId::Undo:
      return widget.undo();
    case CommandId::Redo:
      return widget.redo();
    case CommandId::Cut:
      return widget.cut();
    case CommandId::Copy:
      return widget.copy();
    case CommandId::Paste:
      return widget.paste();
    case CommandId::SelectAll:
      return widget.selectAll();
    default:
      return;
  }
}

}  // namespace

bool canEdit(CommandId command) {
  QWidget* focused = QApplication::focusWidget();
  if (const auto* text = qobject_cast<QPlainTextEdit*>(focused)) return canEditText(*text, command);
  if (const auto* line = qobject_cast<QLineEdit*>(focused)) return canEditLine(*line, command);
  const auto* table = qobject_cast<QAbstractItemView*>(focused);
  return table && command == CommandId::Copy && table->currentIndex().isValid();
}

bool isSingleLineFocused() {
  return qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr;
}

void edit(CommandId command) {
  QWidget* focused = QApplication::focusWidget();
  if (auto* text = qobject_cast<QPlainTextEdit*>(focused)) return editIn(*text, command);
  if (auto* line = qobject_cast<QLineEdit*>(focused)) return editIn(*line, command);
  const auto* table = qobject_cast<QAbstractItemView*>(focused);
  if (table && command == CommandId::Copy) QApplication::clipboard()->setText(table->currentIndex().data().toString());
}

}  // namespace glossmill
