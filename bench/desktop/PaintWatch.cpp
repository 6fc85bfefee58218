#include "desktop/PaintWatch.h"

#include <QEvent>
#include <QWidget>

namespace glossmill::bench {

PaintWatch::PaintWatch(std::initializer_list<QWidget*> widgets) : m_unpainted(widgets.begin(), widgets.end()) {
  for (QObject* widget : m_unpainted) widget->installEventFilter(this);
}

bool PaintWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Paint) return false;
  std::erase(m_unpainted, watched);
  m_moments.push_back(m_time.seconds());
  return false;
}

}  // namespace glossmill::bench
