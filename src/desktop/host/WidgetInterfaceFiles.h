#pragma once

#include "desktop/Shell.h"
#include "platform/InterfaceFiles.h"

namespace glossmill {

class LogWindowInterface;

/// Loads the windows and sheets of the interface files as real widgets.
class WidgetInterfaceFiles : public InterfaceFiles {
 public:
  /// The parts of the shell are not used before the first window is loaded.
  explicit WidgetInterfaceFiles(const Shell& shell) : m_shell(shell) {}

  Interface<ProjectWindowOutlets> loadProjectWindow(ProjectWindowController& owner) override;
  Interface<LongTimeSheetOutlets> loadLongTimeSheet(ProjectWindowController& owner) override;
  Interface<LogWindowOutlets> loadLogWindow(LogWindowController& owner) override;
  Interface<LanguageWindowOutlets> loadLanguageWindow(std::string_view name, LanguageWindowController& owner) override;
  Interface<SelectLanguageWindowOutlets> loadSelectLanguageWindow(SelectLanguageWindowController& owner) override;

  /// Gives the keyboard to the log window; nothing happens before it was loaded.
  void activateLogWindow();

 private:
  Shell m_shell;
  ProjectWindowController* m_project = nullptr;  ///< whose window was loaded
  LogWindowInterface* m_logWindow = nullptr;
};

}  // namespace glossmill
