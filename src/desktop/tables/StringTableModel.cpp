#include "desktop/tables/StringTableModel.h"

#include <QGuiApplication>

#include "app/DisplayTransformers.h"
#include "desktop/host/QtText.h"
#include "desktop/look/LanguageDirection.h"
#include "desktop/look/ReadableColor.h"
#include "desktop/tables/CellText.h"

namespace glossmill {

namespace {

QStringList stringColumnTitles(const Bundle& bundle) {
  QStringList list;
  for (const char* key : {"Key", "Translation", "Comment", "Files", "Uses", "Status"}) {
    list.append(toQt(bundle.localizedString(key)));
  }
  return list;
}

}  // namespace

StringTableModel::StringTableModel(ProjectWindowController& project, const Bundle& bundle)
    : RecordTableModel(stringColumnTitles(bundle)), m_project(project) {}

QVariant StringTableModel::cell(std::size_t row, int column, int role) const {
  const LocalizeString& record = *m_project.stringController().arrangedObject(row);
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return text(record, column);
    case Qt::TextAlignmentRole:
      return alignment(column);
    case Qt::ForegroundRole:
      if (column != Status) return {};
      return readableColor(StatusToTextColorTransformer::transformedValue(record.status(&m_project)),
                           QGuiApplication::palette());
    default:
      return {};
  }
}

QString StringTableModel::text(const LocalizeString& record, int column) const {
  switch (column) {
    case Key:
      return cellText(record.name());
    case Translation: {
      const auto language = m_project.selectedLanguage();
      return language ? cellText(record.languagesDict().find(language->code()).value_or("")) : QString();
    }
    case Comment:
      return cellText(record.comment());
    case Files:
      return cellText(record.sourceList());
    case Uses:
      return QString::number(record.useCount());
    default:
      return cellText(record.statusString(m_project.statusTexts(), &m_project));
  }
}

/// Numbers stand in the middle; translations begin where their language begins a line.
QVariant StringTableModel::alignment(int column) const {
  const auto language = m_project.selectedLanguage();
  if (column == Uses) return static_cast<int>(Qt::AlignCenter);
  if (column != Translation || !language) return {};
  const bool rightToLeft = languageDirection(language->iso639()) == Qt::RightToLeft;
  return static_cast<int>((rightToLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter);
}

}  // namespace glossmill
