#include "project/ProjectFindings.h"

#include <algorithm>

#include "project/DevelopmentRegion.h"
#include "project/ProjectWindowController.h"
#include "scan/TreeWalk.h"

namespace glossmill {

namespace {

StringArray allRecords(const ProjectWindowController& project) {
  StringArray records = project.stringList();
  const StringArray& heldBack = project.filteredStringList();
  records.insert(records.end(), heldBack.begin(), heldBack.end());
  return records;
}

CheckedLanguage checkedLanguage(const ProjectWindowController& project, const Language& language,
                                const StringArray& records) {
  CheckedLanguage checked{language.code(), {}, {}, {}};
  const bool hasFile = language.urlDepth() == Language::kStringsFile;
  if (hasFile && project.tables().empty()) checked.file = language.localizedStringUrl();
  const ReadFiles::File* const read = project.readFiles().find(checked.file);
  if (read) checked.entries = read->entries;
  checked.translations.reserve(records.size());
  for (const std::shared_ptr<LocalizeString>& record : records) {
    checked.translations.push_back(record->languagesDict().stored(language.code()));
  }
  return checked;
}

/// Those of the rules, and what else could not be read.
std::vector<Problem> allProblems(const ProjectWindowController& project) {
  std::vector<Problem> problems = project.problems();
  for (const FileFindings& file : project.scanReport().files()) {
    if (!file.unread) continue;
    const bool isTold = std::any_of(project.problems().begin(), project.problems().end(),
                                    [&file](const Problem& problem) { return problem.file == file.file; });
    if (!isTold) problems.push_back({file.file, 0, 0, "place-unread", file.unread->sentence});
  }
  return problems;
}

}  // namespace

LanguageCode sourceLanguageOf(const ProjectWindowController& project, const CheckSettings& settings) {
  if (!settings.sourceLanguage.empty()) return LanguageCode(settings.sourceLanguage);
  for (const std::shared_ptr<StringsTable>& table : project.tables()) {
    if (!table->files.empty()) return table->development;
  }
  if (!project.projectFileData()) return {};
  return LanguageCode(
      languageCodeForDirectoryName(project.iso639Dict(), developmentRegionOf(*project.projectFileData())));
}

CheckedProject checkedProject(const ProjectWindowController& project, const CheckSettings& settings) {
  CheckedProject checked;
  checked.directory = project.projectDirectory();
  checked.rules = project.projectOptions().rules;
  checked.records = allRecords(project);
  for (const std::shared_ptr<Language>& language : *project.languagesList()) {
    checked.languages.push_back(checkedLanguage(project, *language, checked.records));
  }
  for (const std::shared_ptr<StringsTable>& table : project.tables()) checked.tables.push_back(*table);
  checked.problems = allProblems(project);
  checked.leftOut = project.scanReport().files();
  checked.sources = project.fileList();
  checked.sourceLanguage = sourceLanguageOf(project, settings);
  return checked;
}

std::vector<PlacedFinding> projectFindings(const CheckedProject& project, const CheckSettings& settings,
                                           const FindingsWish& wish, FileReading& files) {
  FindingsRun run(project, settings, wish, files);
  while (run.step()) {
  }
  return run.take();
}

std::map<std::string, FindingCounts> countsByLanguage(const std::vector<PlacedFinding>& findings) {
  std::map<std::string, FindingCounts> counts;
  for (const PlacedFinding& finding : findings) {
    FindingCounts& count = counts[finding.language];
    if (finding.severity == Severity::Error) ++count.errors;
    if (finding.severity == Severity::Warning) ++count.warnings;
    if (finding.severity == Severity::Info) ++count.infos;
  }
  return counts;
}

}  // namespace glossmill
