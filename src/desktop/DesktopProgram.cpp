#include "desktop/DesktopProgram.h"

#include <QApplication>

#include "desktop/host/QtText.h"
#include "desktop/windows/HelpWindows.h"
#include "host/Paths.h"
#include "settings/ReadingChoice.h"

namespace glossmill {

namespace {

/// The options' rules are those of a project that does not say which are its own.
Result<ProjectOpening> settledOpening(FileReading& files, const ProjectOpening& wanted) {
  const ReadingWish wish = {{}, {}, wanted.options.rules};
  Result<ReadingChoice> choice = readingChoice(files, wanted.directory, wish, absoluteUrl);
  if (!choice) return choice.error();
  ProjectOpening settled = {choice.value().directory, wanted.options};
  settled.options.rules = choice.value().rules;
  settled.options.xcode = std::move(choice.value().xcode);
  return settled;
}

}  // namespace

DesktopProgram::DesktopProgram(OwnTexts texts)
    : m_bundle(std::move(texts)),
      m_pump(m_threads.mailbox()),
      m_panels(m_threads.mailbox(), m_bundle),
      m_recentMenu([this](int tag) { return isRecentItemEnabled(tag); }),
      m_actions(m_delegate, m_bundle),
      m_interfaces(
          {m_delegate, m_actions, m_sheets, m_panels, m_recentMenu, m_notifications, m_bundle, m_quitPath, m_threads}),
      m_delegate({m_files, m_defaults, m_notifications, m_threads, m_panels, m_sheets, m_interfaces, m_recentMenu,
                  m_systemLog, m_bundle, m_application, m_saves}),
      m_quitPath(m_delegate, m_threads, m_panels, m_application) {
  setUpHandlers();
  ProjectOptions options;
  options.keepsJournal = true;
  options.command = "window";
  options.version = fromQt(QApplication::applicationVersion());
  m_delegate.setProjectOptions(options);
  m_delegate.setSettingsReader([this](const ProjectOpening& wanted) { return settledOpening(m_files, wanted); });
}

/// Jobs use the project, so they end before it goes.
DesktopProgram::~DesktopProgram() {
  if (ProjectWindowController* project = m_delegate.projectWindowController()) project->longTimeCanceled();
  m_threads.joinAll();
}

void DesktopProgram::setUpHandlers() {
  m_actions.setHandler(CommandId::Quit, [this] { m_quitPath.request(); });
  m_actions.setHandler(CommandId::LogWindow, [this] {
    m_delegate.openLogWindow();
    m_interfaces.activateLogWindow();
  });
  m_actions.setHandler(CommandId::KeyboardShortcuts, [this] { showShortcuts(QApplication::activeWindow(), m_bundle); });
  m_actions.setHandler(CommandId::About, [this] { showAbout(QApplication::activeWindow(), m_bundle); });
}

bool DesktopProgram::isRecentItemEnabled(int tag) const {
  return !m_actions.isCovered() && m_delegate.validateMenuItem(tag);
}

void DesktopProgram::start(const std::optional<FileUrl>& directory) {
  m_panels.presetDirectory(directory);
  m_delegate.applicationDidFinishLaunching();
  m_panels.presetDirectory(std::nullopt);
}

}  // namespace glossmill
