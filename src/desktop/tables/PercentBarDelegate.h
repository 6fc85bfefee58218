#pragma once

#include <QStyledItemDelegate>

namespace glossmill {

/// Draws a small bar for a percentage.
class PercentBarDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace glossmill
