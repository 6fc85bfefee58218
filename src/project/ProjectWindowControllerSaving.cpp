#include "edit/ProjectSaver.h"
#include "project/ProjectWindowController.h"
#include "text/Format.h"

namespace glossmill {

bool ProjectWindowController::saveLanguage(const std::shared_ptr<Language>& language) {
  return save({language});
}

bool ProjectWindowController::saveProject() {
  const bool allWritten = save(*languagesList());
  setChanged(false);
  return allWritten;
}

bool ProjectWindowController::save(const LanguageArray& languages) {
  const std::unique_ptr<LanguageTexts> texts = m_rules->languageTexts(stringList(), languages);
  return saveLanguages(m_host.files, *texts, languages, [this](const SaveOutcome& outcome) { tellOfSave(outcome); });
}

void ProjectWindowController::tellOfSave(const SaveOutcome& outcome) {
  const std::optional<std::string>& name = outcome.language.description();
  const std::string file = outcome.language.localizedStringUrl().text();
  switch (outcome.kind) {
    case SaveOutcome::Kind::Written:
      return;
    case SaveOutcome::Kind::Created:
      runOkAlert(formatText(localized("Created new Localizable.strings for language %@ at:\n\n%@\n\nYou must add this "
                                      "file to your Xcode project bundle!"),
                            {name, file}));
      return;
    case SaveOutcome::Kind::Failed:
      runOkAlert(formatText(localized("Error saving Localizable.strings for language %@"), {name}));
      systemLog(formatText("Error %@ writing file: %@", {outcome.error.sentence, file}));
      return;
    case SaveOutcome::Kind::DirectoryFailed:
      runOkAlert(formatText(localized("Error creating %@ for language %@"), {file, name}));
      systemLog(formatText("Error %@ creating directory %@", {outcome.error.sentence, file}));
      return;
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
  }
  clearProject();
  return true;
}

void ProjectWindowController::runOkAlert(const std::string& message) {
  AlertRequest alert;
  alert.message = message;
  alert.defaultButton = localized("Ok");
  m_host.panels.runAlert(alert);
}

}  // namespace glossmill
