#include "exchange/ExchangeFormat.h"
#include "exchange/ImportPlan.h"
#include "platform/ReadText.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

void ProjectWindowController::importLanguageFromFile(std::shared_ptr<Language> language, const FileUrl& file) {
  if (!language || file.empty()) return;
  beginCountingJob("Importing strings...");
  m_window.outlets.stringTableView->beginUpdates();
  m_edits.beginEdits();
  m_host.threads.performInBackground([this, language, file] { bgImportLanguage(*language, file); });
}

void ProjectWindowController::bgImportLanguage(const Language& language, const FileUrl& file) {
  const Result<std::string> text = readText(m_host.files, file);
  ImportReport report;
  if (!text) report.unread = text.error();
  const bool finished = !text || applyImport(ImportPlan(exchangeFormat().read(text.value()), language.code()), report);
  onMainThread([&] {
    m_importReport = report;
    finished ? endImport() : endCanceledImport(language, file);
  });
}

/// False when it was cancelled; what was applied until then stays. Records are changed on the main thread, so that
/// whatever is drawn meanwhile finds them whole.
bool ProjectWindowController::applyImport(const ImportPlan& plan, ImportReport& report) {
  double counter = 0;
  for (const std::shared_ptr<LocalizeString>& record : stringList()) {
    if (m_longJob.canceled().isSet()) return false;
    ++counter;
    onMainThread([&] {
      updateLongTerm(counter);
      const std::optional<Edit> edit = plan.editFor(record);
      if (!edit) return;
      report.count(*edit);
      applyEdit(EditKind::Import, *edit);
    });
  }
  report.unknown = plan.size() - report.known();
  return true;
}

/// Closes the sheet by the way of the export, with no text to write, and deliberately (rule 54) leaves the batch of
/// updates open.
void ProjectWindowController::endCanceledImport(const Language& language, const FileUrl& file) {
  m_edits.endEdits();
  m_window.outlets.translationTextView->translationChanged();
  saveExportTextFile(language, file, std::nullopt);
}

void ProjectWindowController::endImport() {
  m_edits.endEdits();
  m_window.outlets.languageTableView->reloadData();
  m_window.outlets.stringTableView->reloadData();
  m_window.outlets.stringTableView->endUpdates();
  m_window.outlets.translationTextView->translationChanged();
  didEndLongTimeSheetReturnCodeContextInfo();
}

}  // namespace glossmill
