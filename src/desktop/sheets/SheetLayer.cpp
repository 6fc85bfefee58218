#include "desktop/sheets/SheetLayer.h"

#include <QEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QToolBar>
#include <QWindow>

namespace glossmill {

namespace {

constexpr int kRevealDelay = 80;  // milliseconds

bool isOnScreen(const QWidget& window) {
  return window.windowHandle() && window.windowHandle()->isExposed();
}

}  // namespace

SheetLayer::SheetLayer(QMainWindow& window) : QWidget(&window), m_window(window), m_menuBar(window.menuWidget()) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  hide();
  window.installEventFilter(this);
  m_revealTimer.setSingleShot(true);
  m_revealTimer.setInterval(kRevealDelay);
  connect(&m_revealTimer, &QTimer::timeout, this, [this] { reveal(); });
}

void SheetLayer::cover() {
  place();
  const bool onScreen = isOnScreen(m_window);
  if (onScreen) takePicture();
  setCoveredEnabled(false);
  if (onScreen) {
    reveal();
  } else {
    m_revealTimer.start();
  }
}

void SheetLayer::reveal() {
  if (m_picture.isNull()) takePicture();
  show();
  raise();
  if (revealed) revealed();
}

void SheetLayer::uncover() {
  m_revealTimer.stop();
  hide();
  setCoveredEnabled(true);
  m_picture = QPixmap();
}

bool SheetLayer::eventFilter(QObject* watched, QEvent* event) {
  const bool moved = event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest;
  if (moved && watched == &m_window && isVisible()) place();
  return QWidget::eventFilter(watched, event);
}

void SheetLayer::place() {
  const int top = m_menuBar && m_menuBar->isVisibleTo(&m_window) ? m_menuBar->geometry().bottom() + 1 : 0;
  setGeometry(0, top, m_window.width(), m_window.height() - top);
}

void SheetLayer::takePicture() {
  m_picture = QPixmap(size() * devicePixelRatioF());
  m_picture.setDevicePixelRatio(devicePixelRatioF());
  m_picture.fill(palette().color(QPalette::Window));
  for (QWidget* widget : coveredWidgets()) {
    if (widget->isVisible()) widget->render(&m_picture, widget->mapTo(&m_window, QPoint()) - pos());
  }
  update();
}

QList<QWidget*> SheetLayer::coveredWidgets() const {
  QList<QWidget*> widgets{m_window.centralWidget()};
  for (QToolBar* bar : m_window.findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly)) widgets.append(bar);
  return widgets;
}

void SheetLayer::setCoveredEnabled(bool enabled) {
  for (QWidget* widget : coveredWidgets()) widget->setEnabled(enabled);
}

void SheetLayer::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawPixmap(0, 0, m_picture);
  painter.fillRect(rect(), QColor(0, 0, 0, 70));
}

/// What lies below is laid out anew by the same resizing of the window, so its picture is taken afterwards.
void SheetLayer::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (resized) resized();
  if (!isVisible()) return;
  QMetaObject::invokeMethod(
      this, [this] { takePicture(); }, Qt::QueuedConnection);
}

/// What lies below hears of no click.
void SheetLayer::mousePressEvent(QMouseEvent* event) {
  event->accept();
}

}  // namespace glossmill
