#include "edit/BaseLanguage.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

void ProjectWindowController::languageFromBaseLanguage(std::shared_ptr<Language> language) {
  if (!language) return;
  beginCountingJob("Creating base language...");
  m_window.outlets.stringTableView->beginUpdates();
  m_edits.beginEdits();
  m_host.threads.performInBackground([this, language] { bgLanguageFromBaseLanguage(*language); });
}

/// Records are changed on the main thread, so that whatever is drawn meanwhile finds them whole.
void ProjectWindowController::bgLanguageFromBaseLanguage(const Language& language) {
  double progress = 0;
  for (const std::shared_ptr<LocalizeString>& record : stringList()) {
    if (m_longJob.canceled().isSet()) break;
    ++progress;
    onMainThread([&] {
      updateLongTerm(progress);
      if (const std::optional<Edit> edit = fillFromKey(record, language.code())) applyEdit(EditKind::Fill, *edit);
    });
  }
  onMainThread([this] { endLanguageFromBase(); });
}

void ProjectWindowController::endLanguageFromBase() {
  m_edits.endEdits();
  m_window.outlets.stringTableView->reloadData();
  m_window.outlets.languageTableView->reloadData();
  m_window.outlets.stringTableView->endUpdates();
  m_window.outlets.translationTextView->translationChanged();
  didEndLongTimeSheetReturnCodeContextInfo();
}

}  // namespace glossmill
