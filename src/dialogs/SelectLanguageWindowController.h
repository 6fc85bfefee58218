#pragma once

#include <memory>

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
  /// Outlives the dialog.
  void setDelegate(SelectLanguageWindowControllerDelegate* delegate) { m_delegate = delegate; }

  /// The pop-up's action: lists the languages anew and remembers the choice.
  void changeFilter();
  /// Shows only languages whose code or name holds `text`, in upper or lower case; all for the empty text.
  void search(std::string_view text);
  void doubleClickTableView();
  /// Ends the sheet, then tells the delegate; ignored while nothing is selected.
  void done();
  void cancel();

 private:
  void endSheet();

  Host m_host;
  IsoTable m_languageDict;
  std::shared_ptr<LanguageArray> m_usedLanguagesArray;
  ArrayController<Language> m_languageController;
  SelectLanguageWindowControllerDelegate* m_delegate = nullptr;
  Interface<SelectLanguageWindowOutlets> m_interface;
};

}  // namespace glossmill
