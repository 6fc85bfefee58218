#include <utility>

#include "edit/SavePlan.h"
#include "project/ProjectWindowController.h"
#include "project/ProtectedSave.h"
#include "project/WrittenPlaces.h"
#include "text/Format.h"

namespace glossmill {

bool ProjectWindowController::saveLanguage(const std::shared_ptr<Language>& language) {
  const bool written = save({language});
  m_observers.tell(ProjectMoment::Saved);
  return written;
}

bool ProjectWindowController::saveProject() {
  const bool allWritten = save(*languagesList());
  if (!m_lastSave.refusal) setChanged(false);
  m_observers.tell(ProjectMoment::Saved);
  return allWritten;
}

/// The languages live on while an alert is up: the project may be closed behind it.
bool ProjectWindowController::save(const LanguageArray& languages) {
  const LanguageArray kept = languages;
  const std::unique_ptr<LanguageTexts> texts = m_rules->languageTexts(stringList(), kept);
  std::vector<FileText> plan = planSave(*texts, kept);
  for (FileText& text : plan) {
    const ReadFiles::File* known = m_readFiles.find(text.file);
    if (known) text.expected = known->stamp;
    text.entriesBefore = known ? known->entries : std::nullopt;
  }
  const SaveResult result = writeFiles(plan);
  if (result.refusal) return false;
  rememberSave(plan, result);
  retireWritten(plan, result);
  bool allWritten = true;
  for (std::size_t at = 0; at < kept.size(); ++at) {
    allWritten = allWritten && result.files[at].isWritten();
    tellOfSave(*kept[at], result.files[at]);
  }
  return allWritten;
}

SaveResult ProjectWindowController::writeFiles(const std::vector<FileText>& plan) {
  ProtectedSave protectedSave(m_host, m_options, m_projectDirectory, m_unread);
  SaveResult result = protectedSave.save(plan);
  m_lastSave = {result.refusal, {}, result.id};
  if (protectedSave.wantsReload()) reloadProject();
  return result;
}

void ProjectWindowController::rememberSave(const std::vector<FileText>& plan, const SaveResult& result) {
  for (std::size_t at = 0; at < plan.size(); ++at) {
    const FileText& text = plan[at];
    const bool isNew = result.files[at].kind == FileOutcome::Kind::Created;
    const std::optional<std::uint64_t> before = isNew ? 0 : text.entriesBefore;
    m_lastSave.languages.push_back({text.language, text.file, result.files[at], before, text.entriesAfter});
    if (m_options.pretendsToSave || !result.files[at].isWritten()) continue;
    m_readFiles.set(text.file, {result.files[at].stamp, text.entriesAfter});
  }
}

void ProjectWindowController::retireWritten(const std::vector<FileText>& plan, const SaveResult& result) {
  if (m_options.pretendsToSave || !m_unsaved.anyToRetire()) return;
  const WrittenPlaces written(plan, result.files, stringList());
  m_unsaved.retire([&written](const JournalEdit& edit) { return written.holds(edit); });
}

void ProjectWindowController::tellOfSave(const Language& language, const FileOutcome& outcome) {
  const FileUrl& url = language.localizedStringUrl();
  const std::optional<std::string>& name = language.description();
  if (outcome.kind == FileOutcome::Kind::Created) {
    runOkAlert(formatText(localized("Created new Localizable.strings for language %@ at:\n\n%@\n\nYou must add this "
                                    "file to your Xcode project bundle!"),
                          {name, url.text()}));
  } else if (outcome.kind == FileOutcome::Kind::Failed) {
    runOkAlert(formatText(localized("Error saving Localizable.strings for language %@"), {name}),
               AlertRequest::Cause{url, outcome.error});
    systemLog({"Error %@ writing file: %@", {outcome.error.sentence, url.text()}});
  } else if (outcome.kind == FileOutcome::Kind::DirectoryFailed) {
    runOkAlert(formatText(localized("Error creating %@ for language %@"), {url.text(), name}),
               AlertRequest::Cause{url, outcome.error});
    systemLog({"Error %@ creating directory %@", {outcome.error.sentence, url.text()}});
  }
}

bool ProjectWindowController::closeProject() {
  if (m_window.loaded) m_window.outlets.window->clearFirstResponder();
  if (m_changed) {
    AlertRequest question;
    question.message = localized("Translations not saved. Quit anyway?");
    question.defaultButton = localized("Save");
    question.alternateButton = localized("Delete");
    question.otherButton = localized("Cancel");
    const AlertAnswer answer = m_host.panels.runAlert(question);
    if (answer == AlertAnswer::Other) return false;
    if (answer == AlertAnswer::Default && !saveProject()) return false;
    if (answer == AlertAnswer::Alternate) m_unsaved.discard();
  }
  clearProject();
  return true;
}

void ProjectWindowController::runOkAlert(const std::string& message, std::optional<AlertRequest::Cause> cause) {
  AlertRequest alert;
  alert.cause = std::move(cause);
  alert.message = message;
  alert.defaultButton = localized("Ok");
  m_host.panels.runAlert(alert);
}

}  // namespace glossmill
