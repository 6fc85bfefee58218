#include "desktop/tables/IsoTableModel.h"

#include <QGuiApplication>

#include "app/DisplayTransformers.h"
#include "desktop/host/QtText.h"
#include "desktop/look/ReadableColor.h"
#include "desktop/tables/CellText.h"

namespace glossmill {

namespace {

QStringList isoColumnTitles(const Bundle& bundle) {
  return {toQt(bundle.localizedString("Language")), toQt(bundle.localizedString("Code")), QString()};
}

}  // namespace

IsoTableModel::IsoTableModel(ArrayController<Language>& languages, const Bundle& bundle)
    : RecordTableModel(isoColumnTitles(bundle)),
      m_languages(languages),
      m_inProject(toQt(bundle.localizedString("in the project"))) {}

QVariant IsoTableModel::cell(std::size_t row, int column, int role) const {
  const Language& language = *m_languages.arrangedObject(row);
  switch (role) {
    case Qt::DisplayRole:
      return text(language, column);
    case Qt::ForegroundRole:
      return readableColor(BOOLToColorTransformer::transformedValue(language.inUse()), QGuiApplication::palette());
    default:
      return {};
  }
}

QString IsoTableModel::text(const Language& language, int column) const {
  switch (column) {
    case Name:
      return cellText(language.description().value_or(""));
    case Code:
      return cellText(language.iso639());
    default:
      return language.inUse() ? m_inProject : QString();
  }
}

}  // namespace glossmill
