#include "exchange/ExchangeFiles.h"
#include "exchange/ExchangeFormat.h"
#include "exchange/ImportLanguageChoice.h"
#include "project/ProjectWindowController.h"
#include "text/Format.h"

namespace glossmill {

void ProjectWindowController::importLanguageFromFile(std::shared_ptr<Language> language, const FileUrl& file) {
  if (!language) return;
  m_exchange.tellsOfImport = &formatFor("", file) != &ownFormat();
  importFile({.file = file, .language = language});
}

void ProjectWindowController::importFile(const ImportRequest& request) {
  if (request.file.empty()) return;
  beginCountingJob("Importing strings...");
  m_window.outlets.stringTableView->beginUpdates();
  m_edits.beginEdits();
  m_host.threads.performInBackground([this, request] { bgImportLanguage(request); });
}

Result<ImportPlan> ProjectWindowController::planImport(const ImportRequest& request) const {
  const Result<std::string> text = readExchangeText(m_host.files, request.file);
  if (!text) return text.error();
  Result<ExchangeDocument> document = formatFor(request.format, request.file).read(text.value());
  if (!document) return document.error();
  Result<ImportLanguageChoice> choice =
      importLanguages(document.value().languages, *languagesList(), request.language.get());
  if (!choice) return choice.error();
  ImportPlan plan(std::move(document.value()), stringList(),
                  {std::move(choice.value().languages), request.scope, request.takesUnsure});
  for (ImportNote& note : choice.value().notes) plan.addNote(std::move(note));
  return plan;
}

void ProjectWindowController::bgImportLanguage(const ImportRequest& request) {
  Result<ImportPlan> plan = planImport(request);
  ImportReport report;
  if (!plan) report.unread = plan.error();
  const bool finished = !plan || applyImport(plan.value(), report);
  onMainThread([&] {
    m_exchange.importReport = report;
    m_exchange.importPlan = plan ? std::move(plan.value()) : ImportPlan();
    finished ? endImport() : endCanceledImport(request);
  });
}

/// False when it was cancelled; what was applied until then stays. Records are changed on the main thread, so that
/// whatever is drawn meanwhile finds them whole.
bool ProjectWindowController::applyImport(const ImportPlan& plan, ImportReport& report) {
  double counter = 0;
  for (std::size_t record = 0; record < stringList().size(); ++record) {
    if (m_longJob.canceled().isSet()) return false;
    ++counter;
    onMainThread([&] {
      updateLongTerm(counter);
      for (const ImportItem& item : plan.itemsOf(record)) {
        if (!item.isChosen && item.changesSomething()) continue;
        report.count(item.edit);
        applyEdit(EditKind::Import, item.edit);
      }
    });
  }
  report.unknown = plan.unknownKeys();
  return true;
}

void ProjectWindowController::applyImport(const ImportPlan& plan) {
  m_edits.beginEdits();
  for (const Edit& edit : plan.edits()) applyEdit(EditKind::Import, edit);
  m_edits.endEdits();
  m_window.outlets.languageTableView->reloadData();
  m_window.outlets.stringTableView->reloadData();
  m_window.outlets.translationTextView->translationChanged();
}

/// Closes the sheet by the way of the export, with no text to write, and deliberately (rule 54) leaves the batch of
/// updates open.
void ProjectWindowController::endCanceledImport(const ImportRequest& request) {
  m_edits.endEdits();
  m_exchange.tellsOfImport = false;
  m_window.outlets.translationTextView->translationChanged();
  saveExportTextFile(request.language ? *request.language : Language(), request.file, std::nullopt);
}

void ProjectWindowController::endImport() {
  m_edits.endEdits();
  m_window.outlets.languageTableView->reloadData();
  m_window.outlets.stringTableView->reloadData();
  m_window.outlets.stringTableView->endUpdates();
  m_window.outlets.translationTextView->translationChanged();
  didEndLongTimeSheetReturnCodeContextInfo();
  if (std::exchange(m_exchange.tellsOfImport, false)) tellOfImport();
}

/// The program's own text is taken without a word, as it always was; other formats can say what is wrong with a file.
void ProjectWindowController::tellOfImport() {
  if (m_exchange.importReport.unread) {
    AlertRequest alert;
    alert.message = localized("The file could not be imported");
    alert.informativeText = m_exchange.importReport.unread->sentence;
    alert.defaultButton = localized("Ok");
    m_host.panels.runAlert(alert);
    return;
  }
  logText({localized("Import: %ld new, %ld changed, %ld unchanged, %ld unknown"),
           {static_cast<std::int64_t>(m_exchange.importReport.added),
            static_cast<std::int64_t>(m_exchange.importReport.changed),
            static_cast<std::int64_t>(m_exchange.importReport.unchanged),
            static_cast<std::int64_t>(m_exchange.importReport.unknown)}});
  for (const RejectedLine& line : m_exchange.importPlan.rejected()) {
    logText({localized("Import: line %ld was left out: %@"), {std::int64_t{line.line}, line.sentence}});
  }
}

}  // namespace glossmill
