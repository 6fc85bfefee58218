#include "desktop/windows/EditorText.h"

#include <array>

namespace glossmill {

namespace {

struct Disguise {
  QChar real;
  QChar inEditor;
};

/// The stand-ins are characters that no text may hold for others to read.
constexpr std::array<Disguise, 5> kDisguises = {{
    {QChar(u'\r'), QChar(0xFDD2)},
    {QChar(QChar::LineSeparator), QChar(0xFDD3)},
    {QChar(QChar::ParagraphSeparator), QChar(0xFDD4)},
    {QChar(0xFDD0), QChar(0xFDD5)},
    {QChar(0xFDD1), QChar(0xFDD6)},
}};

}  // namespace

QString toEditorText(QString text) {
  for (const Disguise& disguise : kDisguises) text.replace(disguise.real, disguise.inEditor);
  return text;
}

QString fromEditorText(QString rawText) {
  rawText.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
  rawText.replace(QChar(QChar::LineSeparator), QLatin1Char('\n'));
  for (const Disguise& disguise : kDisguises) rawText.replace(disguise.inEditor, disguise.real);
  return rawText;
}

}  // namespace glossmill
