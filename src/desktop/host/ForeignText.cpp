#include "desktop/host/ForeignText.h"

#include <QTextDocument>
#include <string>

#include "desktop/host/QtText.h"
#include "text/PrintableText.h"

namespace glossmill {

QString shownText(std::string_view text) {
  std::string printable;
  appendPrintableText(printable, text);
  return toQt(printable);
}

QString toolTipText(const QString& text) {
  const QString shown = shownText(fromQt(text));
  return Qt::mightBeRichText(shown) ? Qt::convertFromPlainText(shown) : shown;
}

}  // namespace glossmill
