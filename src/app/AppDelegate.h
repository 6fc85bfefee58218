#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/LogWindowController.h"
#include "app/NewsQueue.h"
#include "app/RulesChoice.h"
#include "platform/Host.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// The application object's delegate: creates the project window and the log window, keeps the recent projects, enables
/// the menu's commands and decides about quitting. Main thread, but for logText() and clearLog().
class AppDelegate : public ApplicationServices {
 public:
  /// `host` outlives the delegate.
  explicit AppDelegate(const Host& host, KeptLog keptLog = KeptLog::Whole) : m_host(host), m_keptLog(keptLog) {}

  // Application events.
  void applicationDidFinishLaunching();
  /// Always yes: who quits by the menu was asked before.
  bool applicationShouldTerminate() const { return true; }
  /// Offers unsaved changes for saving once more; too late to stay.
  void applicationWillTerminate();
  /// Whether the menu item with this tag is enabled.
  bool validateMenuItem(int tag) const;

  // Menu commands.
  void quit();
  void open();
  void close();
  void save();
  void prevString();
  void nextString();
  void prevLanguage();
  void nextLanguage();
  /// By which rules the open project is read from now on.
  void chooseRules(RuleSet rules);
  void openProjectWindow();
  void openLogWindow();
  /// Opens the directory panel at a recent project.
  void recentMenu(std::string_view title);
  void clearRecent();

  /// How projects are opened from now on.
  void setProjectOptions(const ProjectOptions& options) { m_projectOptions = options; }
  /// Set it before the project window is opened.
  void setSettingsReader(SettingsReader reader) { m_settingsReader = std::move(reader); }
  /// What makes the choice of rules outlive the run.
  void setRulesKeeper(RulesKeeper keeper) { m_rulesKeeper = std::move(keeper); }
  /// Formats beside those of the core; the same. They live as long as the program.
  void setExchangeFormats(std::span<const ExchangeFormat> formats) { m_exchangeFormats = formats; }
  /// Called with each message of the log, for whoever passes messages on. Set it before the first one. Main thread.
  std::function<void(const Message&)> onLogText;

  // Services for the project window.
  void logText(const Message& message) override;
  void clearLog() override;
  void saveRecent(std::string_view path) override;
  NewsQueue& news() override { return m_news; }
  void loadRecent();

  const Host& host() const { return m_host; }
  /// Null until the window was opened.
  ProjectWindowController* projectWindowController() const { return m_projectWindowController.get(); }
  LogWindowController* logWindowController() const { return m_logWindowController.get(); }
  const std::vector<std::string>& recentArray() const { return m_recentArray; }

 private:
  void storeRecent();

  Host m_host;
  const KeptLog m_keptLog;
  ProjectOptions m_projectOptions;
  SettingsReader m_settingsReader;
  RulesKeeper m_rulesKeeper;
  std::span<const ExchangeFormat> m_exchangeFormats;
  NewsQueue m_news;
  std::unique_ptr<ProjectWindowController> m_projectWindowController;
  std::unique_ptr<LogWindowController> m_logWindowController;
  std::vector<std::string> m_recentArray;  ///< path texts, most recent first
};

}  // namespace glossmill
