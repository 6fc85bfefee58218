#include <algorithm>

#include "edit/UnusedEntries.h"
#include "project/NewLanguageDirectories.h"
#include "project/ProjectWindowController.h"
#include "text/Format.h"

namespace glossmill {

/// Asks where the files go of the tables that have none yet. False when one of them stays without a place.
bool ProjectWindowController::placeTables(const LanguageArray& languages) {
  bool allPlaced = true;
  for (const std::shared_ptr<StringsTable>& table : m_tables) {
    if (!table->directory.empty()) continue;
    const bool isEdited = std::any_of(languages.begin(), languages.end(), [&](const auto& language) {
      return m_edited.holds(table->id, language->code());
    });
    if (isEdited && !placeTable(*table)) allPlaced = false;
  }
  return allPlaced;
}

bool ProjectWindowController::placeTable(StringsTable& table) {
  OpenPanelRequest request;
  request.title = formatText(localized("Choose the directory for the files of the table %@"), {table.name});
  request.canChooseDirectories = true;
  request.canCreateDirectories = true;
  request.canChooseFiles = false;
  request.directory = m_projectDirectory;
  if (const std::optional<FileUrl> directory = m_host.panels.runOpenPanel(request)) table.directory = *directory;
  if (!table.directory.empty()) return true;
  runOkAlert(formatText(localized("The table %@ was not saved"), {table.name}),
             AlertRequest::Cause{m_projectDirectory.appending(table.name + ".strings"),
                                 Error{"The table has no directory yet, which set --table DIRECTORY/NAME chooses."}});
  return false;
}

std::vector<Edit> ProjectWindowController::unusedEntries(const LanguageArray& languages) const {
  StringArray all = stringList();
  all.insert(all.end(), m_filteredStringList.begin(), m_filteredStringList.end());
  return editsOfUnused(all, languages);
}

void ProjectWindowController::removeEntries(const std::vector<Edit>& edits) {
  if (!edits.empty()) applyStep(EditKind::Removal, edits);
}

std::shared_ptr<Language> ProjectWindowController::addLanguageToTables(std::string_view code,
                                                                       const std::vector<std::string>& tableIds) {
  const auto language = std::make_shared<Language>();
  language->setIso639(code);
  language->setDescription(m_iso639Dict.nameOf(languageWithoutRegion(code)));
  const std::vector<FileUrl> directories = newLanguageDirectories(m_tables, code, tableIds);
  for (const FileUrl& directory : directories) {
    language->setLocalizedStringUrl(directory);
    if (m_host.files.kindOf(directory) == EntryKind::Missing && !createLanguageDirectory(*language)) return nullptr;
  }
  if (directories.empty()) return nullptr;
  m_languageController.addObject(language);
  return language;
}

}  // namespace glossmill
