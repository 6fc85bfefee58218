#pragma once

#include <QObject>

#include "app/ProjectNews.h"
#include "app/UnsavedNews.h"
#include "desktop/Shell.h"
#include "desktop/host/QtFileWatch.h"
#include "desktop/host/WidgetWindow.h"
#include "desktop/windows/DetailPane.h"
#include "desktop/windows/LanguagePane.h"
#include "desktop/windows/NewsBar.h"
#include "desktop/windows/ProjectToolBar.h"
#include "desktop/windows/ProjectWindow.h"
#include "desktop/windows/SavedVersionsWindow.h"
#include "desktop/windows/StringPane.h"
#include "desktop/windows/UnsavedEditsWindow.h"
#include "desktop/windows/UnusedEntriesWindow.h"
#include "desktop/windows/ViewMenu.h"
#include "platform/InterfaceFiles.h"
#include "ui_ProjectWindowController.h"

namespace glossmill {

/// The loaded project window: its widgets, and who tells which of its parts about what.
class ProjectWindowInterface : public LoadedInterface {
 public:
  ProjectWindowInterface(ProjectWindowController& project, Shell& shell);
  ~ProjectWindowInterface() override;

  ProjectWindowOutlets outlets();

 private:
  /// The widgets of the interface file.
  struct Widgets : Ui::ProjectWindowController {
    explicit Widgets(QMainWindow& window) { setupUi(&window); }
  };

  void keepClearOfSplitters();
  void observeProject();
  void setUpCommands();
  void setUpSearch();
  void setUpNews();
  void setUpUnsavedEdits();
  void showUnsavedEdits();
  void setUpUnusedEntries();
  void showUnusedEntries();
  void showVersions(const std::string& id);
  void stringsChanged(ArrayChange change);
  void languagesChanged(ArrayChange change);
  void sheetsChanged();
  void referenceChanged();
  void editApplied(EditKind kind);
  void refresh();

  ProjectWindowController& m_project;
  Shell& m_shell;
  ProjectWindow m_mainWindow;
  Widgets m_widgets;
  NewsBar* m_newsBar;
  UnsavedNews m_unsavedNews;
  QPointer<UnsavedEditsWindow> m_unsavedEdits;
  QPointer<UnusedEntriesWindow> m_unusedEntries;
  QtFileWatch m_fileWatch;
  ProjectNews m_news;
  QPointer<SavedVersionsWindow> m_versions;
  ReferenceText m_reference;
  WidgetWindow m_window;
  StringPane m_strings;
  LanguagePane m_languages;
  DetailPane m_details;
  ViewMenu m_viewMenu;
  ProjectToolBar m_toolBar;
  bool m_refreshQueued = false;
};

}  // namespace glossmill
