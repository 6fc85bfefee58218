#include "project/ProjectWindowController.h"
#include "strings/StringsFileWriter.h"
#include "text/Format.h"

namespace glossmill {

bool ProjectWindowController::saveLanguage(Language& language) {
  StringsFileTexts texts(stringList(), {language.code()});
  return saveLanguageFrom(texts, language);
}

bool ProjectWindowController::saveLanguageFrom(StringsFileTexts& texts, Language& language) {
  if (language.urlDepth() != Language::kStringsFile) {
    language.setLocalizedStringUrl(language.localizedStringUrl().appending("Localizable.strings"));
    language.setUrlDepth(Language::kStringsFile);
  }
  const FileUrl& file = language.localizedStringUrl();
  if (m_host.files.kindOf(file) == EntryKind::Missing && !createStringsDirectory(language)) return false;

  const bool existed = m_host.files.kindOf(file) != EntryKind::Missing;
  texts.start(language.code());
  const Outcome written = m_host.files.writeTextPieces(file, [&texts] { return texts.nextPiece(); });
  if (!written) {
    runOkAlert(formatText(localized("Error saving Localizable.strings for language %@"), {language.description()}));
    systemLog(formatText("Error %@ writing file: %@", {written.error().sentence, file.text()}));
    return false;
  }
  if (!existed) {
    runOkAlert(formatText(localized("Created new Localizable.strings for language %@ at:\n\n%@\n\nYou must add this "
                                    "file to your Xcode project bundle!"),
                          {language.description(), file.text()}));
  }
  return true;
}

bool ProjectWindowController::createStringsDirectory(const Language& language) {
  const FileUrl& file = language.localizedStringUrl();
  const Outcome created = m_host.files.createDirectory(file.parent(), true);
  if (created) return true;
  runOkAlert(formatText(localized("Error creating %@ for language %@"), {file.text(), language.description()}));
  systemLog(formatText("Error %@ creating directory %@", {created.error().sentence, file.text()}));
  return false;
}

bool ProjectWindowController::saveProject() {
  std::vector<LanguageCode> languages;
  for (const std::shared_ptr<Language>& language : *languagesList()) languages.push_back(language->code());
  StringsFileTexts texts(stringList(), languages);
  bool allWritten = true;
  for (const std::shared_ptr<Language>& language : *languagesList()) {
    if (!saveLanguageFrom(texts, *language)) allWritten = false;
  }
  setChanged(false);
  return allWritten;
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
