#include "desktop/tables/ListKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace glossmill {

namespace {

bool movesThroughList(const QKeyEvent& event) {
  const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
  if (modifiers != Qt::NoModifier) return false;
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return true;
    default:
      return false;
  }
}

}  // namespace

ListKeys::ListKeys(QLineEdit& field, QAbstractItemView& list) : QObject(&field), m_list(list) {
  field.installEventFilter(this);
}

bool ListKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !movesThroughList(*static_cast<QKeyEvent*>(event))) {
    return QObject::eventFilter(watched, event);
  }
  QCoreApplication::sendEvent(&m_list, event);
  return true;
}

}  // namespace glossmill
