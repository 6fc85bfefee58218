#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/HeadlessControls.h"
#include "platform/InterfaceFiles.h"

namespace glossmill {

// The windows of the interface files without anything to see. `owner` is the controller that loaded the window.

struct HeadlessProjectWindow {
  ProjectWindowController* owner = nullptr;
  HeadlessWindow window;
  HeadlessTableView stringTableView;
  HeadlessTableView languageTableView;
  HeadlessTranslationTextView translationTextView;
  HeadlessPopUpButton stringFilterPopUp;
};

struct HeadlessLongTimeSheet {
  ProjectWindowController* owner = nullptr;
  HeadlessWindow window;
  HeadlessTextField title;
  HeadlessProgressIndicator indicator;
};

struct HeadlessLogWindow {
  LogWindowController* owner = nullptr;
  HeadlessWindow window;
  HeadlessLogTextView textView;
};

struct HeadlessLanguageWindow {
  LanguageWindowController* owner = nullptr;
  std::string name;  ///< of the interface file
  HeadlessWindow window;
  HeadlessTableView tableView;
  HeadlessCheckButton checkButton;
};

struct HeadlessSelectLanguageWindow {
  SelectLanguageWindowController* owner = nullptr;
  HeadlessWindow window;
  HeadlessTableView tableView;
  HeadlessPopUpButton isoPopUpButton;
};

/// Loads windows that only keep their state. Each can be read here after it was loaded, also when its owner has let go
/// of it (the text of the log is the owner's, though).
class HeadlessInterfaceFiles : public InterfaceFiles {
 public:
  using ProgressObserver = std::function<void(const HeadlessLongTimeSheet&)>;
  using LogObserver = std::function<void(std::string_view)>;

  Interface<ProjectWindowOutlets> loadProjectWindow(ProjectWindowController& owner) override;
  Interface<LongTimeSheetOutlets> loadLongTimeSheet(ProjectWindowController& owner) override;
  Interface<LogWindowOutlets> loadLogWindow(LogWindowController& owner) override;
  /// Only "ExportLanguageWindowController" has a check box.
  Interface<LanguageWindowOutlets> loadLanguageWindow(std::string_view name, LanguageWindowController& owner) override;
  Interface<SelectLanguageWindowOutlets> loadSelectLanguageWindow(SelectLanguageWindowController& owner) override;

  /// Called after each change of a long-time sheet's title or indicator. Set it before the sheet is loaded.
  void setProgressObserver(ProgressObserver observer) { m_progressObserver = std::move(observer); }
  /// Called with the whole log after each change of it. Set it before the log window is loaded.
  void setLogObserver(LogObserver observer) { m_logObserver = std::move(observer); }

  // What was loaded last; null before.
  HeadlessProjectWindow* projectWindow() const { return m_projectWindow.get(); }
  HeadlessLongTimeSheet* longTimeSheet() const { return m_longTimeSheet.get(); }
  HeadlessLogWindow* logWindow() const { return m_logWindow.get(); }
  HeadlessLanguageWindow* languageWindow(const LanguageWindowController& owner) const;
  /// The one that shows this window, for instance the sheet that is up; null when it is none.
  HeadlessLanguageWindow* languageWindow(const Window& window) const;
  HeadlessSelectLanguageWindow* selectLanguageWindow() const { return m_selectLanguageWindow.get(); }

 private:
  ProgressObserver m_progressObserver;
  LogObserver m_logObserver;
  std::shared_ptr<HeadlessProjectWindow> m_projectWindow;
  std::shared_ptr<HeadlessLongTimeSheet> m_longTimeSheet;
  std::shared_ptr<HeadlessLogWindow> m_logWindow;
  std::vector<std::shared_ptr<HeadlessLanguageWindow>> m_languageWindows;
  std::shared_ptr<HeadlessSelectLanguageWindow> m_selectLanguageWindow;
};

}  // namespace glossmill
