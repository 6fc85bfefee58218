#include "editing/JobTrials.h"

#include "edit/BaseLanguage.h"
#include "exchange/ExportText.h"
#include "exchange/ImportPlan.h"
#include "exchange/ImportText.h"
#include "platform/ReadText.h"
#include "project/ExportUnits.h"
#include "timing/Findings.h"

namespace glossmill::bench {

JobTrials::JobTrials(ProjectWindowController& project, Files& files, const FileUrl& scratch,
                     std::function<void()> finishJob)
    : m_project(project),
      m_files(files),
      m_exported(scratch.appending("exported.txt")),
      m_finishJob(std::move(finishJob)),
      m_full(project.languagesList()->front()),
      m_added(std::make_shared<Language>()) {
  m_added->setIso639("added-by-trials");
  fillAll();  // makes room in every record, once for all trials
  removeEntries();
}

void JobTrials::run(const std::string& where, int rounds) {
  measure({"export", [this] { exportAll(); },
           [this] { m_project.exportLanguageToFileAllStrings(m_full, m_exported, ExportScope::AllStrings); }},
          where, rounds);
  const std::size_t imported = importAll();
  measure(
      {"import", [this] { importAll(); }, [this] { m_project.importLanguageFromFile(m_added, m_exported); }, imported},
      where, rounds);
  measure({"base language", [this] { fillAll(); }, [this] { m_project.languageFromBaseLanguage(m_added); },
           m_project.stringList().size()},
          where, rounds);
}

void JobTrials::measure(const Trial& trial, const std::string& where, int rounds) {
  Samples work;
  Samples job;
  for (int round = 0; round < rounds; ++round) {
    removeEntries();
    const Stopwatch workTime;
    trial.work();
    work.add(workTime.seconds());
    checkEntries(trial);

    removeEntries();
    const Stopwatch jobTime;
    trial.job();
    m_finishJob();
    job.add(jobTime.seconds());
    checkEntries(trial);
  }
  removeEntries();
  report(trial.name + ", " + where + ", the work", work);
  report(trial.name + ", " + where + ", as a job", job);
}

void JobTrials::checkEntries(const Trial& trial) const {
  if (entries() == trial.expectedEntries) return;
  giveUp(trial.name + " made " + std::to_string(entries()) + " entries and not " +
         std::to_string(trial.expectedEntries));
}

void JobTrials::exportAll() {
  UnitMaker maker;
  maker.languages = {m_full->code()};
  maker.isBrief = true;
  std::string text = kExportTextStart;
  std::int64_t counter = 0;
  for (const auto& record : m_project.stringList()) {
    if (const auto unit = maker.unitOf(*record, ++counter)) appendExportBlock(text, *unit);
  }
  if (!m_files.writeText(m_exported, text)) giveUp("cannot write " + m_exported.path());
}

std::size_t JobTrials::importAll() {
  Result<std::string> text = readText(m_files, m_exported);
  if (!text) giveUp("cannot read " + m_exported.path());
  Result<ExchangeDocument> document = readExportText(text.value());
  if (!document) giveUp("cannot take in " + m_exported.path());
  const ImportPlan plan(std::move(document.value()), m_project.stringList(), {{m_added->code()}});
  m_project.edits().beginEdits();
  for (const Edit& edit : plan.edits()) m_project.applyEdit(EditKind::Import, edit);
  m_project.edits().endEdits();
  return entries();
}

void JobTrials::fillAll() {
  m_project.edits().beginEdits();
  for (const auto& record : m_project.stringList()) {
    if (const auto edit = fillFromKey(record, m_added->code())) m_project.applyEdit(EditKind::Fill, *edit);
  }
  m_project.edits().endEdits();
}

void JobTrials::removeEntries() {
  m_project.edits().beginEdits();
  for (const auto& record : m_project.stringList()) {
    m_project.applyEdit(EditKind::Import, editOf(record, m_added->code(), std::nullopt));
  }
  m_project.edits().endEdits();
}

std::size_t JobTrials::entries() const {
  std::size_t count = 0;
  for (const auto& record : m_project.stringList()) count += record->languagesDict().contains(m_added->code()) ? 1 : 0;
  return count;
}

void JobTrials::runLongJob(std::size_t times) {
  auto& strings = m_project.stringController();
  const StringArray once = m_project.stringList();
  for (std::size_t time = 1; time < times; ++time) strings.addObjects(once);
  m_project.languageFromBaseLanguage(m_added);
  m_finishJob();
  removeEntries();
  strings.setContent(std::make_shared<StringArray>(once));
}

}  // namespace glossmill::bench
