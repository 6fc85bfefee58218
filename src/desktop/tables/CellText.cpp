#include "desktop/tables/CellText.h"

#include "desktop/host/QtText.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

constexpr std::size_t kLongestCell = 400;  // bytes
constexpr QChar kBreakSign(0x21B5);

}  // namespace

QString cellText(std::string_view text) {
  if (text.size() > kLongestCell) {
    const std::size_t whole = validUtf8Prefix(text.substr(0, kLongestCell));
    text = text.substr(0, whole > 0 ? whole : kLongestCell);
  }
  QString line = toQt(text);
  line.replace(QLatin1String("\r\n"), kBreakSign);
  line.replace(QLatin1Char('\n'), kBreakSign);
  line.replace(QLatin1Char('\r'), kBreakSign);
  return line;
}

QString textWithVisibleBreaks(std::string_view text) {
  QString shown = toQt(text);
  shown.replace(QLatin1Char('\n'), QString(kBreakSign) + QLatin1Char('\n'));
  return shown;
}

}  // namespace glossmill
