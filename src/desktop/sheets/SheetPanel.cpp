#include "desktop/sheets/SheetPanel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

namespace glossmill {

namespace {

constexpr int kShadow = 14;  // beside and below the content
constexpr int kMargin = 12;  // what stays free of the window beside the widest panel
constexpr int kSlideTime = 160;

bool wantsAnimation(const QWidget& widget) {
  return widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) > 0;
}

}  // namespace

SheetPanel::SheetPanel(SheetContent& content, QWidget& parent) : QWidget(&parent), m_content(content) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kShadow, 0, kShadow, kShadow);
  layout->addWidget(&content.widget());
  content.widget().setAutoFillBackground(true);
  m_slide.setDuration(kSlideTime);
  m_slide.setEasingCurve(QEasingCurve::OutCubic);
  connect(&m_slide, &QVariantAnimation::valueChanged, this, [this](const QVariant& top) { move(x(), top.toInt()); });
}

void SheetPanel::place() {
  const QSize room = parentWidget()->size();
  const QSize size = sizeHint().boundedTo(room - QSize(2 * kMargin, kMargin));
  setGeometry((room.width() - size.width()) / 2, 0, size.width(), size.height());
}

void SheetPanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!wantsAnimation(*this)) return;
  m_slide.setStartValue(-height());
  m_slide.setEndValue(0);
  m_slide.start();
}

void SheetPanel::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    m_content.cancelButton().click();
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    pressReturn();
  } else {
    QWidget::keyPressEvent(event);
  }
}

/// Return belongs to the button that has the keyboard, else to the default button.
void SheetPanel::pressReturn() {
  auto* focused = qobject_cast<QPushButton*>(QApplication::focusWidget());
  if (focused && isAncestorOf(focused)) {
    focused->click();
  } else if (m_content.defaultButton()) {
    m_content.defaultButton()->click();
  }
}

void SheetPanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const QRectF inside = rect().adjusted(kShadow, -kShadow, -kShadow, -kShadow);
  for (int ring = kShadow; ring > 0; --ring) {
    painter.setBrush(QColor(0, 0, 0, 3 + (kShadow - ring) / 3));
    painter.drawRoundedRect(inside.adjusted(-ring, 0, ring, ring), ring + 2, ring + 2);
  }
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(inside.adjusted(-0.5, 0, 0.5, 0.5));
}

}  // namespace glossmill
