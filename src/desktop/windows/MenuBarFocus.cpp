#include "desktop/windows/MenuBarFocus.h"

#include <QApplication>
#include <QKeyEvent>

namespace glossmill {

MenuBarFocus::MenuBarFocus(QMenuBar& bar) : QObject(&bar), m_bar(bar) {
  bar.installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old, QWidget* now) {
    if (now == &m_bar && old) m_before = old;
  });
}

bool MenuBarFocus::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    QMetaObject::invokeMethod(
        this, [this] { giveBack(); }, Qt::QueuedConnection);
  }
  return QObject::eventFilter(watched, event);
}

void MenuBarFocus::giveBack() {
  const bool kept = m_bar.hasFocus() && !QApplication::activePopupWidget();
  if (kept && m_before && m_before->isEnabled()) m_before->setFocus(Qt::OtherFocusReason);
}

}  // namespace glossmill
