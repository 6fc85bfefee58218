#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "dialogs/LanguageDialogDelegates.h"
#include "model/ArrayController.h"
#include "model/IsoTable.h"
#include "model/Language.h"
#include "platform/Host.h"

namespace glossmill {

/// A sheet that lists the languages of the ISO 639 table, narrowed by the length of their codes. A fresh one is made
/// each time. Languages that the project has are marked, not refused (rule 44).
/// Main thread.
class SelectLanguageWindowController {
 public:
  SelectLanguageWindowController(const Host& host, std::shared_ptr<LanguageArray> usedLanguages,
                                 const IsoTable& allLanguages);

  /// The dialog's window, loaded on first use.
  Window& window();
  void windowDidLoad();
  /// Sorted by name; the search field narrows it through setFilter().
  ArrayController<Language>& languageController() { return m_languageController; }
  /// What a new language is made for, in a project with several tables.
  struct Table {
    std::string id;
    bool isChosen = true;
  };
  /// Set them before the window is loaded; without them there is nothing to choose.
  void setTables(std::vector<Table> tables) { m_tables = std::move(tables); }
  const std::vector<Table>& tables() const { return m_tables; }
  void chooseTable(std::size_t number, bool chosen) { m_tables.at(number).isChosen = chosen; }
  /// Empty where there is nothing to choose.
  std::vector<std::string> chosenTables() const;
  /// Whether a language could be added: for no table at all there is nothing to add.
  bool canBeDone() const { return m_tables.empty() || !chosenTables().empty(); }
  /// Outlives the dialog.
  void setDelegate(SelectLanguageWindowControllerDelegate* delegate) { m_delegate = delegate; }

  /// The pop-up's action: lists the languages anew and remembers the choice.
  void changeFilter();
  /// Shows only languages whose code or name holds `text`, in upper or lower case; all for the empty text.
  void search(std::string_view text);
  void doubleClickTableView();
  /// Ends the sheet, then tells the delegate; ignored while nothing is selected, or no table is chosen.
  void done();
  void cancel();

 private:
  void endSheet();

  Host m_host;
  IsoTable m_languageDict;
  std::shared_ptr<LanguageArray> m_usedLanguagesArray;
  ArrayController<Language> m_languageController;
  std::vector<Table> m_tables;
  SelectLanguageWindowControllerDelegate* m_delegate = nullptr;
  Interface<SelectLanguageWindowOutlets> m_interface;
};

}  // namespace glossmill
