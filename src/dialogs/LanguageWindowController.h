#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "dialogs/LanguageDialogDelegates.h"
#include "model/ArrayController.h"
#include "model/Language.h"
#include "platform/Host.h"

namespace glossmill {

/// A sheet that lets the user choose one of the project's languages and, in the form with a check box, say whether only
/// untranslated strings are wanted. Made once and shown again; it keeps the array that it was given (rule 42). Main
/// thread.
class LanguageWindowController {
 public:
  /// `name` is the interface file's.
  LanguageWindowController(const Host& host, std::string_view name, std::shared_ptr<LanguageArray> languages);

  /// The dialog's window, loaded on first use.
  Window& window();
  void windowDidLoad();
  ArrayController<Language>& languageController() { return m_languageController; }
  const std::shared_ptr<LanguageArray>& languageArray() const { return m_languageController.content(); }
  /// Outlives the dialog.
  void setDelegate(LanguageWindowControllerDelegate* delegate) { m_delegate = delegate; }
  /// The text of the Incomplete status.
  std::string languageStatus() const;

  void doubleClickTableView();
  /// Ends the sheet, then tells the delegate; ignored while nothing is selected.
  void done();
  void cancel();

 private:
  void endSheet();
  ExportScope scope() const;

  Host m_host;
  std::string m_name;
  ArrayController<Language> m_languageController;
  LanguageWindowControllerDelegate* m_delegate = nullptr;
  Interface<LanguageWindowOutlets> m_interface;
};

}  // namespace glossmill
