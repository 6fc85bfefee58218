#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "platform/Controls.h"

namespace glossmill {

class ProjectWindowController;
class LogWindowController;
class LanguageWindowController;
class SelectLanguageWindowController;

/// What the interface file "ProjectWindowController" connects. The controls live as long as the loaded file.
struct ProjectWindowOutlets {
  Window* window = nullptr;
  TableView* stringTableView = nullptr;
  TableView* languageTableView = nullptr;
  TranslationTextView* translationTextView = nullptr;
  PopUpButton* stringFilterPopUp = nullptr;
};

/// What the interface file "LongTimeSheet" connects.
struct LongTimeSheetOutlets {
  Window* longTimeSheet = nullptr;
  TextField* longTimeSheetTitle = nullptr;
  ProgressIndicator* longTimeIndicator = nullptr;
};

struct LogWindowOutlets {
  Window* window = nullptr;
  LogTextView* textView = nullptr;
};

/// What "LanguageWindowController" and "ExportLanguageWindowController" connect.
struct LanguageWindowOutlets {
  Window* window = nullptr;
  TableView* tableView = nullptr;
  CheckButton* checkButton = nullptr;  ///< null in the form without a check box
};

struct SelectLanguageWindowOutlets {
  Window* window = nullptr;
  TableView* tableView = nullptr;
  PopUpButton* isoPopUpButton = nullptr;
};

/// A loaded interface file: owns its controls.
class LoadedInterface {
 public:
  virtual ~LoadedInterface() = default;
};

/// A loaded interface file and the controls that it connects.
template <typename Outlets>
struct Interface {
  std::unique_ptr<LoadedInterface> loaded;
  Outlets outlets;
};

/// Loads windows by the name of their interface file and connects them with their owner. Main thread. The owner
/// outlives what it loaded.
class InterfaceFiles {
 public:
  virtual ~InterfaceFiles() = default;
  virtual Interface<ProjectWindowOutlets> loadProjectWindow(ProjectWindowController& owner) = 0;
  virtual Interface<LongTimeSheetOutlets> loadLongTimeSheet(ProjectWindowController& owner) = 0;
  virtual Interface<LogWindowOutlets> loadLogWindow(LogWindowController& owner) = 0;
  virtual Interface<LanguageWindowOutlets> loadLanguageWindow(std::string_view name,
                                                              LanguageWindowController& owner) = 0;
  virtual Interface<SelectLanguageWindowOutlets> loadSelectLanguageWindow(SelectLanguageWindowController& owner) = 0;
};

}  // namespace glossmill
