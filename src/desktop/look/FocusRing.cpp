#include "desktop/look/FocusRing.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QPainter>

namespace glossmill {

namespace {

class Ring : public QWidget {
 public:
  explicit Ring(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_TransparentForMouseEvents); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }
};

}  // namespace

FocusRing::FocusRing() {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { follow(now); });
}

FocusRing::~FocusRing() {
  delete m_ring;
}

void FocusRing::follow(QWidget* focused) {
  delete m_ring;
  if (m_target) m_target->removeEventFilter(this);
  m_target = qobject_cast<QAbstractScrollArea*>(focused);
  if (!m_target || m_target->isWindow()) return;
  m_ring = new Ring(m_target->parentWidget());
  m_target->installEventFilter(this);
  place();
}

void FocusRing::place() {
  m_ring->setGeometry(m_target->geometry());
  m_ring->show();
  m_ring->raise();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
  const bool moved = event->type() == QEvent::Move || event->type() == QEvent::Resize;
  if (moved && m_ring && watched == m_target) place();
  return QObject::eventFilter(watched, event);
}

}  // namespace glossmill
