#include "dialogs/LanguageEntry.h"
#include "dialogs/LanguageWindowController.h"
#include "dialogs/SelectLanguageWindowController.h"
#include "exchange/ExchangeFormat.h"
#include "project/NewLanguageDirectories.h"
#include "project/ProjectWindowController.h"
#include "safety/ProjectBounds.h"
#include "text/Format.h"

namespace glossmill {

namespace {

/// Those that a new language can be made for, where there are several.
std::vector<SelectLanguageWindowController::Table> tablesToChoose(const StringsTables& tables) {
  std::vector<SelectLanguageWindowController::Table> offered;
  for (const std::shared_ptr<StringsTable>& table : tables) {
    if (!table->directory.empty()) offered.push_back({table->id, isTranslated(*table)});
  }
  if (offered.size() < 2) offered.clear();
  return offered;
}

/// Unless it is the program's own text, which panels offer anyway, or no file name stands for it.
void addTypes(std::vector<FileTypeGroup>& groups, const ExchangeFormat& format) {
  if (format.name == exchangeFormats().front().name || format.fileTypes.empty()) return;
  groups.push_back({std::string(format.title), {format.fileTypes.begin(), format.fileTypes.end()}});
}

}  // namespace

void ProjectWindowController::exportStrings() {
  showChooser(m_exportLanguageWindowController, "ExportLanguageWindowController");
}

void ProjectWindowController::importStrings() {
  showChooser(m_importLanguageWindowController, "LanguageWindowController");
}

void ProjectWindowController::createBaseLanguage() {
  showChooser(m_baseLanguageWindowController, "LanguageWindowController");
}

/// A chooser is made on first use and kept, with the array of languages that the project had then (rule 42). A language
/// that was added to the project since is in the same array.
void ProjectWindowController::showChooser(std::shared_ptr<LanguageWindowController>& chooser, std::string_view name) {
  if (!chooser) chooser = std::make_shared<LanguageWindowController>(m_host, name, languagesList());
  chooser->languageController().rearrange();
  chooser->setDelegate(this);
  m_host.sheets.beginSheet(chooser->window(), [] {});
}

void ProjectWindowController::languageWindowControllerDidSelectAllStrings(LanguageWindowController& chooser,
                                                                          std::shared_ptr<Language> language,
                                                                          ExportScope scope) {
  if (!language) return;
  if (&chooser == m_exportLanguageWindowController.get()) chooseExportFile(language, scope);
  if (&chooser == m_importLanguageWindowController.get()) chooseImportFile(language);
  if (&chooser == m_baseLanguageWindowController.get()) languageFromBaseLanguage(language);
}

void ProjectWindowController::languageWindowControllerDidCancel(LanguageWindowController&) {}

void ProjectWindowController::chooseExportFile(std::shared_ptr<Language> language, ExportScope scope) {
  SavePanelRequest request;
  request.proposedName =
      formatText(localized("%@_%@.txt"), {m_projectDirectory.lastPathComponent(), language->iso639()});
  request.types = {{localized("Text files"), {"txt"}}};
  for (const ExchangeFormat& format : m_exchange.formats) addTypes(request.types, format);
  m_host.panels.beginSavePanel(request, [this, language, scope](const std::optional<FileUrl>& file) {
    if (file) exportLanguageToFileAllStrings(language, *file, scope);
  });
}

void ProjectWindowController::chooseImportFile(std::shared_ptr<Language> language) {
  OpenPanelRequest request;
  request.title = localized("Select file");
  for (const std::string_view type : ownFormat().fileTypes) request.fileTypes.emplace_back(type);
  for (const ExchangeFormat& format : m_exchange.formats) {
    if (!format.isDirectory) addTypes(request.moreTypes, format);
  }
  const std::optional<FileUrl> file = m_host.panels.runOpenPanel(request);
  if (file) importLanguageFromFile(language, *file);
}

void ProjectWindowController::addLanguage() {
  if (!m_selectLanguageWindowController) {
    m_selectLanguageWindowController =
        std::make_shared<SelectLanguageWindowController>(m_host, languagesList(), m_iso639Dict);
    m_selectLanguageWindowController->setTables(tablesToChoose(m_tables));
  }
  m_selectLanguageWindowController->setDelegate(this);
  m_host.sheets.beginSheet(m_selectLanguageWindowController->window(), [this] { didEndSelectLanguageWindowSheet(); });
}

/// The dialog that is ending is still at work, so it goes away only when the next one is made.
void ProjectWindowController::didEndSelectLanguageWindowSheet() {
  m_endedSelectLanguageWindowController = std::move(m_selectLanguageWindowController);
  m_selectLanguageWindowController = nullptr;
}

void ProjectWindowController::selectLanguageWindowControllerDidSelect(SelectLanguageWindowController& dialog,
                                                                      std::shared_ptr<Language> chosen) {
  if (chosen) addChosenLanguage(*chosen, dialog.chosenTables());
}

std::shared_ptr<Language> ProjectWindowController::addLanguage(std::string_view code) {
  const std::optional<std::string> name = m_iso639Dict.nameOf(code);
  return name ? addChosenLanguage(languageEntry(code, *name, *languagesList())) : nullptr;
}

/// Without a project directory the new one would be made at the root of the disk.
std::shared_ptr<Language> ProjectWindowController::addChosenLanguage(const Language& chosen,
                                                                     const std::vector<std::string>& tableIds) {
  if (m_projectDirectory.empty()) return nullptr;
  if (m_options.rules == RuleSet::Xcode) return addLanguageToTables(chosen.iso639(), tableIds);
  const auto language = std::make_shared<Language>(chosen);
  const FileUrl directory = newLanguageParent().appending(formatText("%@.lproj", {language->iso639()}));
  language->setLocalizedStringUrl(directory);
  language->setUrlDepth(0);
  TableView& table = *m_window.outlets.stringTableView;
  table.beginUpdates();
  table.reloadData();
  table.endUpdates();
  const bool isMade = m_options.leavesDirectoriesToSave || m_host.files.kindOf(directory) != EntryKind::Missing;
  if (!isMade && !createLanguageDirectory(*language)) return nullptr;
  m_languageController.addObject(language);
  return language;
}

/// Projects often keep their sources in a directory of their own name below the project directory (rule 45).
FileUrl ProjectWindowController::newLanguageParent() {
  const FileUrl inner = m_projectDirectory.appending(m_projectDirectory.lastPathComponent());
  return m_host.files.kindOf(inner) == EntryKind::Missing ? m_projectDirectory : inner;
}

bool ProjectWindowController::createLanguageDirectory(const Language& language) {
  const FileUrl& directory = language.localizedStringUrl();
  const bool anywhere = m_options.allowance.outside;
  Outcome created = anywhere ? Done{} : checkInside(m_host.saves, m_projectDirectory, directory);
  if (created) created = m_host.files.createDirectory(directory, false);
  if (created) return true;
  runOkAlert(formatText(localized("Error creating %@ for language %@"), {directory.text(), language.description()}),
             AlertRequest::Cause{directory, created.error()});
  systemLog({"Error %@ creating directory %@", {created.error().sentence, directory.text()}});
  return false;
}

}  // namespace glossmill
