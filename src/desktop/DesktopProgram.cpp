#include "desktop/DesktopProgram.h"

#include <QApplication>

#include "app/RememberedRules.h"
#include "desktop/host/QtText.h"
#include "desktop/windows/HelpWindows.h"
#include "formats/XmlFormats.h"
#include "host/Paths.h"
#include "settings/KeptRules.h"
#include "settings/ReadingChoice.h"

namespace glossmill {

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
  setUpRules();
  ProjectOptions options;
  options.keepsJournal = true;
  options.command = "window";
  options.version = fromQt(QApplication::applicationVersion());
  m_delegate.setProjectOptions(options);
  m_delegate.setExchangeFormats(xmlFormats());
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

void DesktopProgram::setUpRules() {
  m_delegate.setSettingsReader([this](const ProjectOpening& wanted) { return settledOpening(wanted); });
  m_delegate.setRulesKeeper([this](const ProjectWindowController& project, RuleSet rules) {
    const Outcome kept = keepRules(m_delegate.host(), project.projectDirectory(), project.projectOptions(), rules);
    if (kept) m_typedRules.reset();
    return kept;
  });
}

Result<ProjectOpening> DesktopProgram::settledOpening(const ProjectOpening& wanted) {
  const FileUrl directory = projectDirectoryOf(m_files, wanted.directory);
  const ReadingWish wish = {m_typedRules, {}, rememberedRules(m_defaults, directory)};
  Result<ReadingChoice> choice = readingChoice(m_files, wanted.directory, wish, absoluteUrl);
  if (!choice) return choice.error();
  ProjectOpening settled = {choice.value().directory, wanted.options};
  settled.options.rules = choice.value().rules;
  settled.options.xcode = std::move(choice.value().xcode);
  return settled;
}

bool DesktopProgram::isRecentItemEnabled(int tag) const {
  return !m_actions.isCovered() && m_delegate.validateMenuItem(tag);
}

void DesktopProgram::start(const std::optional<FileUrl>& directory, std::optional<RuleSet> rules) {
  m_typedRules = rules;
  m_panels.presetDirectory(directory);
  m_delegate.applicationDidFinishLaunching();
  m_panels.presetDirectory(std::nullopt);
}

}  // namespace glossmill
