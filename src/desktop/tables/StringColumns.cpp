#include "desktop/tables/StringColumns.h"

#include "desktop/look/LanguageDirection.h"
#include "desktop/tables/CellText.h"

namespace glossmill {

namespace {

QString translationOf(const LocalizeString& record, const ProjectWindowController& project) {
  const auto language = project.selectedLanguage();
  return language ? cellText(record.languagesDict().find(language->code()).value_or("")) : QString();
}

QString tableOf(const LocalizeString& record) {
  return record.tableRow() ? cellText(record.tableRow()->table->id) : QString();
}

/// Translations begin where their language begins a line.
Qt::Alignment translationAlignment(const ProjectWindowController& project) {
  const auto language = project.selectedLanguage();
  if (!language) return Qt::AlignLeading | Qt::AlignVCenter;
  const bool rightToLeft = languageDirection(language->iso639()) == Qt::RightToLeft;
  return (rightToLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter;
}

}  // namespace

std::vector<Column<LocalizeString>> stringColumns(const ProjectWindowController& project,
                                                  const ReferenceText& reference) {
  using Record = LocalizeString;
  const auto translation = [&project](const Record& record) { return translationOf(record, project); };
  const auto source = [&reference](const Record& record) { return cellText(reference.of(record)); };
  const auto uses = [](const Record& record) { return QString::number(record.useCount()); };
  const auto status = [&project](const Record& record) {
    return cellText(record.statusString(project.statusTexts(), &project));
  };
  const auto statusColor = [&project](const Record& record) {
    return StatusToTextColorTransformer::transformedValue(record.status(&project));
  };
  return {
      {"Key", 245, [](const Record& record) { return cellText(record.name()); }},
      Column<Record>("Translation", 225, translation).aligned([&project] { return translationAlignment(project); }),
      {"Comment", 126, [](const Record& record) { return cellText(record.comment()); }},
      {"Files", 88, [](const Record& record) { return cellText(record.sourceList()); }},
      Column<Record>("Uses", 50, uses).aligned([] { return Qt::Alignment(Qt::AlignCenter); }),
      Column<Record>("Status", 104, status).colored(statusColor),
      Column<Record>("Table", 130, tableOf).shownAt(1),
      Column<Record>("Source Text", 200, source).shownAt(2),
  };
}

}  // namespace glossmill
