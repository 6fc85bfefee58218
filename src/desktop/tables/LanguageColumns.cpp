#include "desktop/tables/LanguageColumns.h"

#include "desktop/tables/CellText.h"
#include "model/PercentDone.h"

namespace glossmill {

namespace {

/// Strings that the filter holds back are complete.
int percentOf(const Language& language, const ProjectWindowController& project) {
  const std::size_t all = project.stringList().size() + project.filteredStringList().size();
  return percentDone(all, project.missingTranslations(language));
}

}  // namespace

/// The name takes what the others leave, so that nothing is cut off when a scroll bar comes.
std::vector<Column<Language>> languageColumns(const ProjectWindowController& project) {
  const auto name = [](const Language& language) {
    return cellText(language.description().value_or(language.iso639()));
  };
  const auto status = [&project](const Language& language) {
    return cellText(language.statusString(project.statusTexts(), &project));
  };
  const auto statusColor = [&project](const Language& language) {
    return StatusToTextColorTransformer::transformedValue(language.status(&project));
  };
  const auto percent = [&project](const Language& language) { return percentOf(language, project); };
  const auto done = [percent](const Language& language) { return QStringLiteral("%1 %").arg(percent(language)); };
  return {
      {"Code", 66, [](const Language& language) { return cellText(language.iso639()); }},
      Column<Language>("Language", 110, name).takingTheRest(),
      Column<Language>("Status", 92, status).colored(statusColor),
      Column<Language>("Done", 54, done).asBar(percent),
  };
}

}  // namespace glossmill
