#include "desktop/tables/LanguageTableModel.h"

#include <QGuiApplication>

#include "app/DisplayTransformers.h"
#include "desktop/host/QtText.h"
#include "desktop/look/ReadableColor.h"
#include "desktop/tables/CellText.h"
#include "model/PercentDone.h"

namespace glossmill {

namespace {

QStringList languageColumnTitles(const Bundle& bundle) {
  QStringList list;
  for (const char* key : {"Code", "Language", "Status", "Done"}) list.append(toQt(bundle.localizedString(key)));
  return list;
}

}  // namespace

LanguageTableModel::LanguageTableModel(ArrayController<Language>& languages, ProjectWindowController& project,
                                       const Bundle& bundle)
    : RecordTableModel(languageColumnTitles(bundle)), m_languages(languages), m_project(project) {}

QVariant LanguageTableModel::cell(std::size_t row, int column, int role) const {
  const Language& language = *m_languages.arrangedObject(row);
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return text(language, column);
    case Qt::ForegroundRole:
      if (column != Status) return {};
      return readableColor(StatusToTextColorTransformer::transformedValue(language.status(&m_project)),
                           QGuiApplication::palette());
    case kPercentRole:
      return column == Done ? percent(language) : QVariant();
    default:
      return {};
  }
}

QString LanguageTableModel::text(const Language& language, int column) const {
  switch (column) {
    case Code:
      return cellText(language.iso639());
    case Name:
      return cellText(language.description().value_or(language.iso639()));
    case Status:
      return cellText(language.statusString(m_project.statusTexts(), &m_project));
    default:
      return QStringLiteral("%1 %").arg(percent(language));
  }
}

/// Strings that the filter holds back are complete.
int LanguageTableModel::percent(const Language& language) const {
  const std::size_t all = m_project.stringList().size() + m_project.filteredStringList().size();
  return percentDone(all, m_project.missingTranslations(language));
}

}  // namespace glossmill
