#pragma once

#include <memory>

#include "model/ExportScope.h"
#include "model/Language.h"

namespace glossmill {

class LanguageWindowController;
class SelectLanguageWindowController;

/// Hears what was chosen in a chooser of the project's languages. The sheet has always ended before.
class LanguageWindowControllerDelegate {
 public:
  virtual ~LanguageWindowControllerDelegate() = default;
  virtual void languageWindowControllerDidSelectAllStrings(LanguageWindowController& chooser,
                                                           std::shared_ptr<Language> language, ExportScope scope) = 0;
  virtual void languageWindowControllerDidCancel(LanguageWindowController& chooser) = 0;
};

/// Hears which language is to be added. The sheet has always ended before.
class SelectLanguageWindowControllerDelegate {
 public:
  virtual ~SelectLanguageWindowControllerDelegate() = default;
  virtual void selectLanguageWindowControllerDidSelect(SelectLanguageWindowController& dialog,
                                                       std::shared_ptr<Language> language) = 0;
};

}  // namespace glossmill
