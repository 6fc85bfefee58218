#include "support/TestProject.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace glossmill {

std::string inProject(std::string_view name) {
  return std::string(TestProject::kDirectory) + "/" + std::string(name);
}

std::string stringsFileOf(std::string_view code) {
  return inProject(std::string(code) + ".lproj/Localizable.strings");
}

TestProject::TestProject(EmbeddedBundle::StringsTable strings) : host(std::move(strings)), application(host.parts()) {
  host.files.addFile(inProject("App.xcodeproj/project.pbxproj"), "/* Main.m in Sources */");
  host.files.addFile(inProject("Main.m"), "");
  host.interfaces.setProgressObserver([this](const HeadlessLongTimeSheet& changed) {
    if (onProgress) onProgress(changed);
  });
}

void TestProject::addString(std::string_view key, std::string_view comment) {
  m_source += "NSLocalizedString(@\"" + std::string(key) + "\", @\"" + std::string(comment) + "\");\n";
  host.files.addFile(inProject("Main.m"), m_source);
}

void TestProject::addLanguage(std::string_view code, std::string_view stringsFile) {
  host.files.addFile(stringsFileOf(code), stringsFile);
}

void TestProject::addBareLanguage(std::string_view code) {
  host.files.addDirectory(inProject(std::string(code) + ".lproj"));
}

void TestProject::open() {
  host.panels.willChoose(kDirectory);
  if (application.projectWindowController()) {
    application.open();
  } else {
    application.applicationDidFinishLaunching();
  }
  host.runUntilIdle();
  ASSERT_TRUE(project().opened());
}

void TestProject::select(std::string_view key, std::string_view code) {
  ProjectWindowController::StringController& strings = project().stringController();
  for (std::size_t row = 0; row < strings.arrangedCount(); ++row) {
    if (strings.arrangedObject(row)->name() == key) strings.setSelectionIndex(row);
  }
  ProjectWindowController::LanguageController& languages = project().languageController();
  for (std::size_t row = 0; row < languages.arrangedCount(); ++row) {
    if (languages.arrangedObject(row)->iso639() == code) languages.setSelectionIndex(row);
  }
  ASSERT_EQ(project().selectedString()->name(), key);
  ASSERT_EQ(project().selectedLanguage()->iso639(), code);
}

std::vector<std::string> TestProject::shownKeys() {
  const ProjectWindowController::StringController& rows = project().stringController();
  std::vector<std::string> keys;
  for (std::size_t row = 0; row < rows.arrangedCount(); ++row) keys.push_back(rows.arrangedObject(row)->name());
  return keys;
}

void TestProject::type(std::string_view text) {
  project().selectedString()->setTranslationForSelectedString(text, &project());
}

void TestProject::chooseFilter(int index) {
  window().stringFilterPopUp.selectItemAtIndex(index);
  project().changeStringFilter();
}

std::shared_ptr<LocalizeString> TestProject::record(std::string_view key) {
  const StringArray& records = project().stringList();
  const auto found = std::find_if(records.begin(), records.end(), [key](const std::shared_ptr<LocalizeString>& record) {
    return record->name() == key;
  });
  return found == records.end() ? nullptr : *found;
}

std::shared_ptr<Language> TestProject::language(std::string_view code) {
  const LanguageArray& languages = *project().languagesList();
  const auto found =
      std::find_if(languages.begin(), languages.end(),
                   [code](const std::shared_ptr<Language>& language) { return language->iso639() == code; });
  return found == languages.end() ? nullptr : *found;
}

std::optional<std::string> TestProject::translation(std::string_view key, std::string_view code) {
  const std::shared_ptr<LocalizeString> found = record(key);
  const auto text = found ? found->languagesDict().find(LanguageCode(code)) : std::nullopt;
  return text ? std::optional(std::string(*text)) : std::nullopt;
}

void TestProject::setTranslation(std::string_view key, std::string_view code, std::string_view text) {
  project().applyEdit(EditKind::Import, editOf(record(key), LanguageCode(code), std::string(text)));
}

std::vector<std::string> TestProject::keys() {
  std::vector<std::string> keys;
  for (const std::shared_ptr<LocalizeString>& record : project().stringList()) keys.push_back(record->name());
  return keys;
}

std::optional<std::string> TestProject::savedFile(std::string_view code) {
  return host.files.bytesOf(stringsFileOf(code));
}

std::vector<std::string> TestProject::alertMessages() const {
  std::vector<std::string> messages;
  for (const AlertRequest& alert : host.panels.alerts) messages.push_back(alert.message);
  return messages;
}

}  // namespace glossmill
