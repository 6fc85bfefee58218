#pragma once

#include <optional>

#include "app/AppDelegate.h"
#include "desktop/DesktopApplication.h"
#include "desktop/QuitPath.h"
#include "desktop/host/InsideSheets.h"
#include "desktop/host/MailboxPump.h"
#include "desktop/host/OwnTexts.h"
#include "desktop/host/RecentMenu.h"
#include "desktop/host/SettingsDefaults.h"
#include "desktop/host/StderrSystemLog.h"
#include "desktop/host/WidgetInterfaceFiles.h"
#include "desktop/host/WidgetPanels.h"
#include "desktop/look/FocusRing.h"
#include "desktop/windows/CommandActions.h"
#include "host/EmbeddedBundle.h"
#include "host/HostThreads.h"
#include "host/LocalNotificationCenter.h"
#include "host/PosixFiles.h"
#include "host/PosixSaveDisk.h"

namespace glossmill {

/// The desktop application: the real host, the application delegate, and the shell around its windows. Made after the
/// QApplication, whose identity is set; main thread.
class DesktopProgram {
 public:
  /// The program's own texts in the user's language.
  explicit DesktopProgram(OwnTexts texts);
  ~DesktopProgram();
  DesktopProgram(const DesktopProgram&) = delete;
  DesktopProgram& operator=(const DesktopProgram&) = delete;

  /// Opens the windows, and the directory if one is given; else asks for one, which runs an event loop of its own. The
  /// rules come before all others until some are chosen in the window.
  void start(const std::optional<FileUrl>& directory, std::optional<RuleSet> rules = std::nullopt);

  AppDelegate& delegate() { return m_delegate; }
  DesktopApplication& application() { return m_application; }
  CommandActions& actions() { return m_actions; }
  InsideSheets& sheets() { return m_sheets; }
  WidgetPanels& panels() { return m_panels; }
  QuitPath& quitPath() { return m_quitPath; }
  RecentMenu& recentMenu() { return m_recentMenu; }
  HostThreads& threads() { return m_threads; }

 private:
  bool isRecentItemEnabled(int tag) const;
  void setUpHandlers();
  void setUpRules();
  Result<ProjectOpening> settledOpening(const ProjectOpening& wanted);

  EmbeddedBundle m_bundle;
  PosixFiles m_files;
  PosixSaveDisk m_saves;
  SettingsDefaults m_defaults;
  LocalNotificationCenter m_notifications;
  HostThreads m_threads;
  MailboxPump m_pump;
  WidgetPanels m_panels;
  InsideSheets m_sheets;
  StderrSystemLog m_systemLog;
  DesktopApplication m_application;
  RecentMenu m_recentMenu;
  CommandActions m_actions;
  WidgetInterfaceFiles m_interfaces;
  std::optional<RuleSet> m_typedRules;
  AppDelegate m_delegate;  ///< owns the windows, so everything that they use stands above
  QuitPath m_quitPath;
  FocusRing m_focusRing;
};

}  // namespace glossmill
