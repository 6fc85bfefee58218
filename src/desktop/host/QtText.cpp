#include "desktop/host/QtText.h"

#include "text/Utf8.h"

namespace glossmill {

namespace {

unsigned byteAt(std::string_view text, std::size_t place) {
  return static_cast<unsigned char>(text[place]);
}

bool startsWithSurrogate(std::string_view text) {
  return text.size() >= 3 && byteAt(text, 0) == 0xED && byteAt(text, 1) >= 0xA0 && byteAt(text, 1) <= 0xBF &&
         (byteAt(text, 2) & 0xC0) == 0x80;
}

QChar takeSurrogate(std::string_view& text) {
  const unsigned unit = 0xD000 | ((byteAt(text, 1) & 0x3F) << 6) | (byteAt(text, 2) & 0x3F);
  text.remove_prefix(3);
  return QChar(static_cast<char16_t>(unit));
}

QString fromValidUtf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

QString toQt(std::string_view text) {
  QString converted;
  while (true) {
    const std::size_t valid = validUtf8Prefix(text);
    converted += fromValidUtf8(text.substr(0, valid));
    text.remove_prefix(valid);
    if (text.empty()) return converted;
    if (startsWithSurrogate(text)) {
      converted += takeSurrogate(text);
      continue;
    }
    converted += QChar(QChar::ReplacementCharacter);
    text.remove_prefix(1);
  }
}

std::string fromQt(QStringView text) {
  std::string converted;
  converted.reserve(static_cast<std::size_t>(text.size()));
  for (qsizetype place = 0; place < text.size(); ++place) {
    const QChar unit = text[place];
    if (unit.isHighSurrogate() && place + 1 < text.size() && text[place + 1].isLowSurrogate()) {
      appendUtf8(converted, QChar::surrogateToUcs4(unit, text[++place]));
    } else {
      appendUtf8(converted, unit.unicode());
    }
  }
  return converted;
}

}  // namespace glossmill
