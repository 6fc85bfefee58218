#include "project/ProjectWindowController.h"
#include "project/RuleSets.h"

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
  startScan(*chosen, options);
  return true;
}

bool ProjectWindowController::openProjectAt(const FileUrl& directory, const ProjectOptions& options) {
  if (!closeProject()) return false;
  startScan(directory, options);
  return true;
}

void ProjectWindowController::startScan(const FileUrl& directory, const ProjectOptions& options) {
  m_projectDirectory = directory;
  m_options = options;
  m_rules = &projectRules(options.rules);
  parseProject();
  m_window.outlets.window->setTitle(m_projectDirectory.lastPathComponentWithoutExtension());
}

bool ProjectWindowController::parseProject() {
  beginLongTimeSheet("Parsing project directory...");
  makeIndicatorIndeterminate();
  m_host.threads.performInBackground(
      [this, directory = m_projectDirectory, &rules = *m_rules] { parseFileList(directory, rules); });
  return true;
}

void ProjectWindowController::beginLongTimeSheet(std::string_view titleKey) {
  if (!m_longTime.loaded) m_longTime = m_host.interfaces.loadLongTimeSheet(*this);
  m_longTime.outlets.longTimeSheetTitle->setStringValue(localized(titleKey));
  m_host.sheets.beginSheet(*m_longTime.outlets.longTimeSheet, [this] { didEndLongTimeSheetReturnCodeContextInfo(); });
  m_longTimeCanceled.set(false);
  m_longJobRunning = true;
}

void ProjectWindowController::makeIndicatorIndeterminate() {
  m_longTime.outlets.longTimeIndicator->setIndeterminate(true);
  m_longTime.outlets.longTimeIndicator->startAnimation();
}

void ProjectWindowController::makeIndicatorCounting() {
  ProgressIndicator& indicator = *m_longTime.outlets.longTimeIndicator;
  indicator.setIndeterminate(false);
  indicator.setMinValue(0.0);
  indicator.setMaxValue(static_cast<double>(stringList().size()));
  indicator.setDoubleValue(0.0);
}

/// Ending the sheet comes back here as its did-end call.
void ProjectWindowController::didEndLongTimeSheetReturnCodeContextInfo() {
  m_longJobRunning = false;
  if (!m_longTime.loaded) return;
  m_longTime.outlets.longTimeSheet->orderOut();
  m_host.sheets.endSheet(*m_longTime.outlets.longTimeSheet);
}

void ProjectWindowController::updateLongTerm(double value) {
  m_longTime.outlets.longTimeIndicator->setDoubleValue(value);
}

}  // namespace glossmill
