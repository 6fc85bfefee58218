#include "desktop/tables/PercentBarDelegate.h"

#include <QApplication>
#include <QPainter>

#include "desktop/tables/RecordTableModel.h"

namespace glossmill {

namespace {

constexpr int kBarHeight = 7;
constexpr int kBarMargin = 6;

QRectF barOf(const QRect& cell) {
  return QRectF(cell.left() + kBarMargin, cell.center().y() + 0.5 - kBarHeight / 2.0, cell.width() - 2 * kBarMargin,
                kBarHeight);
}

/// The filled part begins where a line of text begins.
QRectF filledPart(QRectF bar, int percent, Qt::LayoutDirection direction) {
  const double length = bar.width() * percent / 100;
  if (direction == Qt::RightToLeft) bar.setLeft(bar.right() - length);
  bar.setWidth(length);
  return bar;
}

void drawBar(QPainter& painter, const QRectF& bar, const QColor& color) {
  painter.setBrush(color);
  painter.drawRoundedRect(bar, kBarHeight / 2.0, kBarHeight / 2.0);
}

}  // namespace

void PercentBarDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  cell.text.clear();
  QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
  const QVariant percent = index.data(RecordTableModel::kPercentRole);
  const QRectF bar = barOf(cell.rect);
  if (!percent.isValid() || bar.width() < kBarHeight) return;
  const bool selected = cell.state.testFlag(QStyle::State_Selected);
  const QColor ink = cell.palette.color(selected ? QPalette::HighlightedText : QPalette::Highlight);
  QColor trough = cell.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
  trough.setAlphaF(selected ? 0.35F : 0.15F);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  drawBar(*painter, bar, trough);
  if (percent.toInt() > 0) drawBar(*painter, filledPart(bar, percent.toInt(), cell.direction), ink);
  painter->restore();
}

}  // namespace glossmill
