#include "app/AppDelegate.h"

#include <algorithm>

#include "app/UntranslatedSteps.h"
#include "model/Settings.h"

namespace glossmill {

namespace {

constexpr std::size_t kRecentLimit = 5;
constexpr int kClearMenuTag = 4;

}  // namespace

void AppDelegate::applicationDidFinishLaunching() {
  loadRecent();
  openProjectWindow();
  m_projectWindowController->openProject(m_recentArray.empty() ? FileUrl() : FileUrl::fromText(m_recentArray.front()),
                                         m_projectOptions);
}

void AppDelegate::applicationWillTerminate() {
  if (m_projectWindowController) m_projectWindowController->closeProject();
}

bool AppDelegate::validateMenuItem(int tag) const {
  const ProjectWindowController* project = m_projectWindowController.get();
  switch (tag) {
    case 2:
    case 5:
    case 6:
    case 7:
    case 21:
      return project && project->canClose();
    case 3:
      return project && project->canSave();
    case kClearMenuTag:
      return !m_recentArray.empty();
    case 11:
      return project && project->canSelectPrevString();
    case 12:
      return project && project->canSelectNextString();
    case 13:
      return project && project->canSelectPrevLanguage();
    case 14:
      return project && project->canSelectNextLanguage();
    case 16:
      return project && project->canUndo();
    case 17:
      return project && project->canRedo();
    case 18:
      return project && project->canSaveAll();
    case 20:
      return m_news.current() != nullptr;
    case 22:
      return project && project->opened() && project->projectOptions().rules == RuleSet::Xcode;
    case 23:
      return project && hasUntranslated(*project);
    default:
      return true;
  }
}

void AppDelegate::quit() {
  if (!m_projectWindowController || m_projectWindowController->closeProject()) m_host.application.terminate();
}

void AppDelegate::open() {
  if (m_projectWindowController) m_projectWindowController->openProject(FileUrl(), m_projectOptions);
}

void AppDelegate::close() {
  if (m_projectWindowController) m_projectWindowController->closeProject();
}

void AppDelegate::save() {
  if (m_projectWindowController) m_projectWindowController->saveProject();
}

void AppDelegate::prevString() {
  if (m_projectWindowController) m_projectWindowController->selectPrevString();
}

void AppDelegate::nextString() {
  if (m_projectWindowController) m_projectWindowController->selectNextString();
}

void AppDelegate::prevLanguage() {
  if (m_projectWindowController) m_projectWindowController->selectPrevLanguage();
}

void AppDelegate::nextLanguage() {
  if (m_projectWindowController) m_projectWindowController->selectNextLanguage();
}

void AppDelegate::chooseRules(RuleSet rules) {
  if (m_projectWindowController) glossmill::chooseRules(m_host, *m_projectWindowController, rules, m_rulesKeeper);
}

void AppDelegate::openProjectWindow() {
  if (!m_projectWindowController) {
    m_projectWindowController = std::make_unique<ProjectWindowController>(m_host, *this);
    m_projectWindowController->setSettingsReader(m_settingsReader);
    m_projectWindowController->addExchangeFormats(m_exchangeFormats);
  }
  m_projectWindowController->showWindow();
}

void AppDelegate::openLogWindow() {
  if (!m_logWindowController) m_logWindowController = std::make_unique<LogWindowController>(m_host, m_keptLog);
  m_logWindowController->showWindow();
}

/// The stored path serves as the text of a URL (rule 56): one with a blank in it names nothing, and the panel opens
/// anywhere.
void AppDelegate::recentMenu(std::string_view title) {
  if (m_projectWindowController) m_projectWindowController->openProject(FileUrl::fromText(title), m_projectOptions);
}

void AppDelegate::clearRecent() {
  m_recentArray.clear();
  storeRecent();
}

void AppDelegate::logText(const Message& message) {
  m_host.threads.performOnMainThreadAndWait([&] {
    openLogWindow();
    m_logWindowController->logText(message);
    if (onLogText) onLogText(message);
  });
}

void AppDelegate::clearLog() {
  m_host.threads.performOnMainThreadAndWait([this] {
    if (m_logWindowController) m_logWindowController->clearLog();
  });
}

/// The limit is tested for equality only (rule 57): a stored list that is already longer keeps growing.
void AppDelegate::saveRecent(std::string_view path) {
  const auto known = std::find(m_recentArray.begin(), m_recentArray.end(), path);
  if (known != m_recentArray.end()) {
    std::rotate(m_recentArray.begin(), known, known + 1);
  } else {
    if (m_recentArray.size() == kRecentLimit) m_recentArray.pop_back();
    m_recentArray.emplace(m_recentArray.begin(), path);
  }
  storeRecent();
}

void AppDelegate::storeRecent() {
  storeTexts(m_host.defaults, SettingId::RecentProjects, m_recentArray);
  loadRecent();
}

void AppDelegate::loadRecent() {
  m_recentArray = storedTexts(m_host.defaults, SettingId::RecentProjects);
  Menu& menu = m_host.recentMenu;
  menu.removeAllItems();
  for (const std::string& path : m_recentArray) {
    menu.addItem({path, 0, [this, path] { recentMenu(path); }, false});
  }
  if (!m_recentArray.empty()) menu.addItem({"", 0, nullptr, true});
  menu.addItem({m_host.bundle.localizedString("Clear Menu"), kClearMenuTag, [this] { clearRecent(); }, false});
}

}  // namespace glossmill
