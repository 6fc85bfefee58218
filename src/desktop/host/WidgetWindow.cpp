#include "desktop/host/WidgetWindow.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QMetaObject>

#include "desktop/host/QtText.h"

namespace glossmill {

namespace {

void restoreFocus(QWidget& window, QWidget* before) {
  if (window.focusWidget() && window.focusWidget()->hasFocus()) return;
  if (before && before->isEnabled() && before->isVisible()) before->setFocus(Qt::OtherFocusReason);
}

}  // namespace

void showAgain(QWidget& window) {
  if (window.isMinimized()) window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
}

void WidgetWindow::setTitle(std::string_view title) {
  QString text = toQt(title);
  text.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
  m_window.setWindowTitle(text + QLatin1String("[*]"));
}

void WidgetWindow::setDocumentEdited(bool edited) {
  m_isEdited = edited;
  mark();
}

void WidgetWindow::setHasUnsavedEdits(bool hasUnsavedEdits) {
  if (m_hasUnsavedEdits == hasUnsavedEdits) return;
  m_hasUnsavedEdits = hasUnsavedEdits;
  mark();
}

void WidgetWindow::mark() {
  m_window.setWindowModified(m_isEdited || m_hasUnsavedEdits);
  if (editedChanged) editedChanged();
}

void WidgetWindow::show() {
  m_window.show();
  makeKeyAndOrderFront();
}

void WidgetWindow::makeKeyAndOrderFront() {
  showAgain(m_window);
  m_window.raise();
  m_window.activateWindow();
}

void WidgetWindow::setOrderedIndex(int index) {
  if (index == 0) m_window.raise();
}

void WidgetWindow::clearFirstResponder() {
  QGuiApplication::inputMethod()->commit();
  QWidget* const focused = m_window.focusWidget();
  if (!focused) return;
  focused->clearFocus();
  QMetaObject::invokeMethod(
      &m_window, [&window = m_window, before = QPointer<QWidget>(focused)] { restoreFocus(window, before); },
      Qt::QueuedConnection);
}

}  // namespace glossmill
