#pragma once

#include <QStyledItemDelegate>

namespace glossmill {

/// Draws a text that runs from right to left, or one in a window that does, in its own direction, so that a full stop
/// stands where its language puts it.
class CellDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QString displayText(const QVariant& value, const QLocale& locale) const override;
};

}  // namespace glossmill
