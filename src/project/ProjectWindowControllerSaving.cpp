#include <utility>

#include "project/ProjectWindowController.h"
#include "project/ProtectedSave.h"
#include "project/WrittenPlaces.h"
#include "text/Format.h"

namespace glossmill {

namespace {

/// Nothing where the table of languages does not know it.
std::optional<std::string> nameOfLanguage(const LanguageArray& languages, const std::string& code) {
  for (const std::shared_ptr<Language>& language : languages) {
    if (language->iso639() == code) return language->description();
  }
  return std::nullopt;
}

/// A table has one more file.
void noteSavedFile(const StringsTables& tables, const FileText& text, LanguageCode language) {
  for (const std::shared_ptr<StringsTable>& table : tables) {
    if (table->id == text.table && !table->find(language)) table->addFile({text.file, language, false, {}, false});
  }
}

}  // namespace

bool ProjectWindowController::saveLanguage(const std::shared_ptr<Language>& language) {
  const bool written = save({language});
  if (m_rules->savesOnlyEdits() && !m_lastSave.refusal) setChanged(!m_edited.empty());
  m_observers.tell(ProjectMoment::Saved);
  return written;
}

bool ProjectWindowController::saveProject() {
  const bool allWritten = save(*languagesList());
  if (!m_lastSave.refusal) setChanged(!m_edited.empty());
  m_observers.tell(ProjectMoment::Saved);
  return allWritten;
}

/// The languages live on while an alert is up: the project may be closed behind it.
bool ProjectWindowController::save(const LanguageArray& languages) {
  const LanguageArray kept = languages;
  bool allWritten = placeTables(kept);
  std::vector<FileText> plan = m_rules->planSave({m_host.files, stringList(), kept, m_tables, m_edited});
  addWhatWasRead(plan);
  const SaveResult result = writeFiles(plan);
  if (result.refusal) return false;
  rememberSave(plan, result);
  retireWritten(plan, result);
  for (std::size_t at = 0; at < plan.size(); ++at) {
    allWritten = allWritten && result.files[at].isWritten();
    tellOfSave(plan[at], result.files[at], nameOfLanguage(kept, plan[at].language));
  }
  return allWritten;
}

/// Of files that no scan has looked for the rules may have said what they have to be.
void ProjectWindowController::addWhatWasRead(std::vector<FileText>& plan) const {
  for (FileText& text : plan) {
    const ReadFiles::File* known = m_readFiles.find(text.file);
    if (!known) continue;
    text.expected = known->stamp;
    if (!text.entriesBefore) text.entriesBefore = known->entries;
  }
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
    std::vector<std::string> codes = text.otherLanguages;
    codes.push_back(text.language);
    for (const std::string& code : codes) {
      m_edited.removeSaved(text.table, LanguageCode(code));
      noteSavedFile(m_tables, text, LanguageCode(code));
    }
  }
}

void ProjectWindowController::retireWritten(const std::vector<FileText>& plan, const SaveResult& result) {
  if (m_options.pretendsToSave || !m_unsaved.anyToRetire()) return;
  const WrittenPlaces written(plan, result.files, stringList());
  m_unsaved.retire([&written](const JournalEdit& edit) { return written.holds(edit); });
}

void ProjectWindowController::tellOfSave(const FileText& text, const FileOutcome& outcome,
                                         const std::optional<std::string>& language) {
  const FileUrl& url = text.file;
  if (outcome.kind == FileOutcome::Kind::Created) {
    runOkAlert(m_rules->savesOnlyEdits() ? newTableFileText(url, language.value_or(text.language))
                                         : newLocalizableText(url, language));
  } else if (outcome.kind == FileOutcome::Kind::Failed) {
    runOkAlert(m_rules->savesOnlyEdits()
                   ? formatText(localized("Error saving %@ for language %@"),
                                {url.lastPathComponent(), language.value_or(text.language)})
                   : formatText(localized("Error saving Localizable.strings for language %@"), {language}),
               AlertRequest::Cause{url, outcome.error});
    systemLog({"Error %@ writing file: %@", {outcome.error.sentence, url.text()}});
  } else if (outcome.kind == FileOutcome::Kind::DirectoryFailed) {
    runOkAlert(formatText(localized("Error creating %@ for language %@"), {url.text(), language}),
               AlertRequest::Cause{url, outcome.error});
    systemLog({"Error %@ creating directory %@", {outcome.error.sentence, url.text()}});
  }
}

std::string ProjectWindowController::newLocalizableText(const FileUrl& file,
                                                        const std::optional<std::string>& language) const {
  return formatText(localized("Created new Localizable.strings for language %@ at:\n\n%@\n\nYou must add this "
                              "file to your Xcode project bundle!"),
                    {language, file.text()});
}

std::string ProjectWindowController::newTableFileText(const FileUrl& file, const std::string& language) const {
  return formatText(localized("Created a new %@ for language %@ at:\n\n%@\n\nAdd it to the project in Xcode, as a "
                              "localization beside those that the project has."),
                    {file.lastPathComponent(), language, file.path()});
}

bool ProjectWindowController::settleChanges() {
  if (m_window.loaded) m_window.outlets.window->clearFirstResponder();
  if (!m_changed) return true;
  const AlertAnswer answer = askToSave();
  if (answer == AlertAnswer::Other) return false;
  if (answer == AlertAnswer::Alternate) m_unsaved.discard();
  return answer == AlertAnswer::Alternate || saveProject();
}

bool ProjectWindowController::closeProject() {
  if (!settleChanges()) return false;
  clearProject();
  return true;
}

AlertAnswer ProjectWindowController::askToSave() {
  const bool savesEdits = m_rules->savesOnlyEdits();
  AlertRequest question;
  question.message = savesEdits ? localized("Do you want to save the translations that you changed?")
                                : localized("Translations not saved. Quit anyway?");
  question.defaultButton = localized("Save");
  question.alternateButton = savesEdits ? localized("Don't Save") : localized("Delete");
  question.otherButton = localized("Cancel");
  return m_host.panels.runAlert(question);
}

void ProjectWindowController::runOkAlert(const std::string& message, std::optional<AlertRequest::Cause> cause) {
  AlertRequest alert;
  alert.cause = std::move(cause);
  alert.message = message;
  alert.defaultButton = localized("Ok");
  m_host.panels.runAlert(alert);
}

}  // namespace glossmill
