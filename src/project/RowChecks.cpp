#include "project/RowChecks.h"

#include <algorithm>

#include "checks/CheckList.h"
#include "checks/RowFindings.h"
#include "checks/SourceTexts.h"
#include "model/RecordsByPlace.h"
#include "platform/ShownPath.h"
#include "project/ProjectFindings.h"
#include "project/ProjectWindowController.h"
#include "text/Format.h"

namespace glossmill {

RowChecks::RowChecks(const ProjectWindowController& project, const CheckSettings& settings)
    : m_project(project), m_policy(settings, {}), m_sourceLanguage(sourceLanguageOf(project, settings)) {}

LanguageCode RowChecks::developmentOf(const LocalizeString& record) const {
  return record.tableRow() ? record.tableRow()->table->development : m_sourceLanguage;
}

std::optional<std::string_view> RowChecks::sourceTextOf(const LocalizeString& record) const {
  const std::string_view development = record.languagesDict().find(developmentOf(record)).value_or("");
  return glossmill::sourceTextOf(record, development, translationsOf(record));
}

std::string RowChecks::fileOf(const LocalizeString& record, LanguageCode language) const {
  FileUrl file;
  if (const TableRow* const row = record.tableRow()) {
    const StringsTable::File* const found = row->table->find(language);
    if (found) file = found->file;
  } else {
    for (const std::shared_ptr<Language>& one : *m_project.languagesList()) {
      if (one->code() == language && one->urlDepth() == Language::kStringsFile) file = one->localizedStringUrl();
    }
  }
  return std::string(shownPath(m_project.projectDirectory(), file));
}

std::vector<Finding> RowChecks::findings(const LocalizeString& record, LanguageCode language,
                                         const std::optional<std::string_view>& translation) const {
  const TextForm form = record.tableRow() ? TextForm::Values : TextForm::Raw;
  const std::optional<std::string_view> source = sourceTextOf(record);
  std::vector<Finding> findings = rowFindings(
      {record, source, translation, language.text(), developmentOf(record).text(), form, translationsOf(record)},
      m_policy);
  if (findings.empty()) return findings;
  const std::string file = fileOf(record, language);
  std::erase_if(findings, [&](const Finding& finding) {
    const FindingSubject subject{finding.check, file, tableIdOf(record), record.name(), language.text()};
    return m_policy.ignores(subject) || m_policy.isAccepted(subject, source, translation);
  });
  for (Finding& finding : findings) finding.severity = m_policy.severityOf(finding);
  return findings;
}

std::vector<Finding> RowChecks::findings(const LocalizeString& record, LanguageCode language) const {
  return findings(record, language, record.languagesDict().find(language));
}

std::string sentenceOf(const Finding& finding) {
  return formatText(sentenceOf(finding.kind), {finding.what, finding.other});
}

}  // namespace glossmill
