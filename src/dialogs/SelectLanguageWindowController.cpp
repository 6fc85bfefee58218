#include "dialogs/SelectLanguageWindowController.h"

#include "dialogs/LanguageEntry.h"
#include "model/Settings.h"
#include "text/FoldCase.h"

namespace glossmill {

namespace {

enum CodeLengths { TwoLetterCodes = 0, ThreeLetterCodes = 1, BothLengths = 2 };

bool isListed(std::size_t codeLength, int choice) {
  if (codeLength == 2) return choice == TwoLetterCodes || choice == BothLengths;
  if (codeLength == 3) return choice == ThreeLetterCodes || choice == BothLengths;
  return false;
}

bool comesBefore(const Language& a, const Language& b) {
  if (a.description() != b.description()) return a.description() < b.description();
  return a.iso639() < b.iso639();
}

}  // namespace

SelectLanguageWindowController::SelectLanguageWindowController(const Host& host,
                                                               std::shared_ptr<LanguageArray> usedLanguages,
                                                               const IsoTable& allLanguages)
    : m_host(host), m_languageDict(allLanguages), m_usedLanguagesArray(std::move(usedLanguages)) {
  m_languageController.setLess(comesBefore);
}

Window& SelectLanguageWindowController::window() {
  if (!m_interface.loaded) {
    m_interface = m_host.interfaces.loadSelectLanguageWindow(*this);
    windowDidLoad();
  }
  return *m_interface.outlets.window;
}

void SelectLanguageWindowController::windowDidLoad() {
  m_interface.outlets.tableView->setDoubleAction([this] { doubleClickTableView(); });
  m_interface.outlets.isoPopUpButton->selectItemAtIndex(
      static_cast<int>(storedNumber(m_host.defaults, SettingId::CodeLengths)));
  changeFilter();
  m_languageController.setSelectionIndex(0);
  m_interface.outlets.window->focusMainField();
}

void SelectLanguageWindowController::changeFilter() {
  m_interface.outlets.tableView->beginUpdates();
  m_languageController.removeAllObjects();
  const int choice = m_interface.outlets.isoPopUpButton->indexOfSelectedItem();
  LanguageArray entries;
  for (const auto& [code, name] : m_languageDict.all()) {
    if (!isListed(code.size(), choice)) continue;
    entries.push_back(std::make_shared<Language>(languageEntry(code, name, *m_usedLanguagesArray)));
  }
  m_languageController.addObjects(entries);
  m_interface.outlets.tableView->endUpdates();
  storeNumber(m_host.defaults, SettingId::CodeLengths, choice);
}

void SelectLanguageWindowController::search(std::string_view text) {
  if (text.empty()) {
    m_languageController.setFilter(nullptr);
    return;
  }
  m_languageController.setFilter([wanted = foldCase(text)](const Language& language) {
    return foldCase(language.iso639()).find(wanted) != std::string::npos ||
           foldCase(language.description().value_or("")).find(wanted) != std::string::npos;
  });
}

std::vector<std::string> SelectLanguageWindowController::chosenTables() const {
  std::vector<std::string> ids;
  for (const Table& table : m_tables) {
    if (table.isChosen) ids.push_back(table.id);
  }
  return ids;
}

void SelectLanguageWindowController::doubleClickTableView() {
  if (m_languageController.selectedRow()) done();
}

void SelectLanguageWindowController::done() {
  const std::shared_ptr<Language> chosen = m_languageController.selectedObject();
  if (!chosen || !canBeDone()) return;
  endSheet();
  if (m_delegate) m_delegate->selectLanguageWindowControllerDidSelect(*this, chosen);
}

void SelectLanguageWindowController::cancel() {
  endSheet();
}

void SelectLanguageWindowController::endSheet() {
  window().orderOut();
  m_host.sheets.endSheet(window());
}

}  // namespace glossmill
