#include "project/ProjectWindowController.h"
#include "project/RuleSets.h"
#include "project/ScanRun.h"

namespace glossmill {

bool ProjectWindowController::openProject(const FileUrl& start, const ProjectOptions& options) {
  if (!closeProject()) return false;
  OpenPanelRequest request;
  request.title = localized("Choose project directory...");
  request.prompt = "Choose";
  request.canCreateDirectories = true;
  request.canChooseDirectories = true;
  request.canChooseFiles = false;
  request.directory = start;
  const std::optional<FileUrl> chosen = m_host.panels.runOpenPanel(request);
  if (!chosen) return false;
  return startScan(*chosen, options);
}

bool ProjectWindowController::openProjectAt(const FileUrl& directory, const ProjectOptions& options) {
  if (!closeProject()) return false;
  return startScan(directory, options);
}

bool ProjectWindowController::startScan(const FileUrl& directory, const ProjectOptions& options) {
  m_opening = {directory, options};
  const Result<ProjectOpening> settled = m_settingsReader ? m_settingsReader(m_opening) : m_opening;
  if (!settled) {
    runOkAlert(settled.error().sentence);
    return false;
  }
  m_projectDirectory = settled.value().directory;
  m_options = settled.value().options;
  m_rules = &projectRules(m_options.rules);
  parseProject();
  m_window.outlets.window->setTitle(m_projectDirectory.lastPathComponentWithoutExtension());
  return true;
}

bool ProjectWindowController::parseProject() {
  beginLongJob("Parsing project directory...");
  m_longJob.showActivity();
  const auto scan = std::make_shared<ScanRun>(
      *m_rules,
      ScanRun::Parts{m_host.files, m_host.saves, m_iso639Dict, m_longJob.canceled(), m_scanMessages, m_options});
  m_host.threads.performInBackground([this, scan, directory = m_projectDirectory] { parseFileList(directory, scan); });
  return true;
}

/// Ending the sheet comes back as its did-end call.
void ProjectWindowController::beginLongJob(std::string_view titleKey) {
  m_longJob.begin(localized(titleKey), [this] { didEndLongTimeSheetReturnCodeContextInfo(); });
}

/// A job that goes from record to record.
void ProjectWindowController::beginCountingJob(std::string_view titleKey) {
  beginLongJob(titleKey);
  m_longJob.showProgress(stringList().size());
}

}  // namespace glossmill
