#include "project/ProjectFindings.h"

#include <algorithm>
#include <tuple>

#include "checks/CheckList.h"
#include "platform/ShownPath.h"
#include "project/ProjectWindowController.h"
#include "text/Format.h"

namespace glossmill {

namespace {

StringArray allRecords(const ProjectWindowController& project) {
  StringArray records = project.stringList();
  const StringArray& heldBack = project.filteredStringList();
  records.insert(records.end(), heldBack.begin(), heldBack.end());
  return records;
}

CheckedLanguage checkedLanguage(const Language& language, const StringArray& records) {
  CheckedLanguage checked{language.code(), {}, {}};
  if (language.urlDepth() == Language::kStringsFile) checked.file = language.localizedStringUrl();
  checked.translations.reserve(records.size());
  for (const std::shared_ptr<LocalizeString>& record : records) {
    checked.translations.push_back(record->languagesDict().stored(language.code()));
  }
  return checked;
}

FileUrl fileOf(const LocalizeString& record, const CheckedLanguage& language) {
  if (!record.tableRow()) return language.file;
  const StringsTable::File* const file = record.tableRow()->table->find(language.code);
  return file ? file->file : FileUrl();
}

PlacedFinding missingFinding(const CheckedProject& project, const LocalizeString& record,
                             const CheckedLanguage& language, StoredText translation) {
  PlacedFinding finding;
  finding.check = Check::Missing;
  finding.severity = Severity::Error;
  finding.kind = translation ? FindingKind::EmptyTranslation : FindingKind::NoTranslation;
  finding.file = shownPath(project.directory, fileOf(record, language));
  finding.language = language.code.text();
  if (record.tableRow()) finding.table = record.tableRow()->table->id;
  finding.key = record.name();
  if (translation) finding.translation = translation.view();
  finding.sentence = formatText(sentenceOf(finding.kind), {finding.what, finding.other});
  return finding;
}

bool isMissing(const LocalizeString& record, StoredText translation) {
  if (!record.tableRow()) return !translation;
  return record.tableRow()->isWanted && (!translation || translation.view().empty());
}

bool isWanted(const FindingsWish& wish, LanguageCode language) {
  return wish.languages.empty() ||
         std::find(wish.languages.begin(), wish.languages.end(), language) != wish.languages.end();
}

auto orderOf(const PlacedFinding& finding) {
  return std::tie(finding.file, finding.line, finding.column, finding.language, finding.check, finding.table,
                  finding.key, finding.kind);
}

}  // namespace

CheckedProject checkedProject(const ProjectWindowController& project, const CheckSettings& settings) {
  CheckedProject checked;
  checked.directory = project.projectDirectory();
  checked.rules = project.projectOptions().rules;
  checked.records = allRecords(project);
  for (const std::shared_ptr<Language>& language : *project.languagesList()) {
    checked.languages.push_back(checkedLanguage(*language, checked.records));
  }
  for (const std::shared_ptr<StringsTable>& table : project.tables()) checked.tables.push_back(*table);
  checked.problems = project.problems();
  checked.sources = project.fileList();
  checked.sourceLanguage = LanguageCode(settings.sourceLanguage);
  return checked;
}

std::vector<PlacedFinding> projectFindings(const CheckedProject& project, const CheckSettings&,
                                           const FindingsWish& wish, FileReading&) {
  std::vector<PlacedFinding> findings;
  for (const CheckedLanguage& language : project.languages) {
    if (!isWanted(wish, language.code)) continue;
    for (std::size_t row = 0; row < project.records.size(); ++row) {
      const LocalizeString& record = *project.records[row];
      if (!isMissing(record, language.translations[row])) continue;
      findings.push_back(missingFinding(project, record, language, language.translations[row]));
    }
  }
  std::stable_sort(findings.begin(), findings.end(),
                   [](const PlacedFinding& a, const PlacedFinding& b) { return orderOf(a) < orderOf(b); });
  return findings;
}

}  // namespace glossmill
