#include "desktop/tables/CellDelegate.h"

#include <QGuiApplication>

namespace glossmill {

namespace {

constexpr QChar kFirstStrongIsolate(0x2068);
constexpr QChar kPopIsolate(0x2069);

}  // namespace

QString CellDelegate::displayText(const QVariant& value, const QLocale& locale) const {
  const QString text = QStyledItemDelegate::displayText(value, locale);
  if (!QGuiApplication::isRightToLeft() && !text.isRightToLeft()) return text;
  return kFirstStrongIsolate + text + kPopIsolate;
}

}  // namespace glossmill
