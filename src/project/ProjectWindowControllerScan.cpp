#include "project/ProjectWindowController.h"

namespace glossmill {

ScanInput ProjectWindowController::scanInput(ScanListener& listener) {
  return {m_reading, m_iso639Dict, m_longTimeCanceled, listener};
}

void ProjectWindowController::happened(const ScanEvent& event) {
  if (const auto* source = std::get_if<SourceBegins>(&event)) m_actualParseFileName = source->file;
  m_readFiles.add(event, m_host.saves);
  // A source that cannot be decoded is passed over by the rules; these two would take words along.
  if (const auto* file = std::get_if<ProjectFileUnread>(&event)) m_reading.note(file->file, file->error.sentence);
  if (const auto* file = std::get_if<StringsFileUnread>(&event)) m_reading.note(file->file, file->error.sentence);
  m_scanMessages.write(event);
}

void ProjectWindowController::parseFileList(const FileUrl& directory, const ProjectRules& rules) {
  const auto result = std::make_shared<ScanResult>();
  m_reading.clear();
  ReportingScanListener listener(result->report, *this);
  rules.readSources(directory, scanInput(listener), m_scanMemory, *result);
  const std::optional<FileUrl>& package = m_scanMemory.projectPackage;
  if (package && m_scanMemory.projectFileData == "") {
    m_reading.note(package->appending("project.pbxproj"), "The project file is empty.");
  }
  onMainThread([&] { endParseFileList(result); });
}

void ProjectWindowController::endParseFileList(std::shared_ptr<ScanResult> result) {
  if (m_longTimeCanceled.isSet()) {
    clearProject();
    didEndLongTimeSheetReturnCodeContextInfo();
    return;
  }
  m_longTime.outlets.longTimeSheetTitle->setStringValue(localized("Parsing Localizable.strings ..."));
  m_host.threads.performInBackground([this, result, &rules = *m_rules] { parseLocalizableStringsList(result, rules); });
}

void ProjectWindowController::parseLocalizableStringsList(std::shared_ptr<ScanResult> result,
                                                          const ProjectRules& rules) {
  ReportingScanListener listener(result->report, *this);
  const ScanEnd end = rules.readStringsFiles(scanInput(listener), *result);
  if (end == ScanEnd::Complete) onMainThread([&] { endParseLocalizeableStringList(*result); });
}

void ProjectWindowController::endParseLocalizeableStringList(ScanResult& result) {
  if (m_longTimeCanceled.isSet()) {
    clearProject();
  } else {
    installResult(result);
  }
  didEndLongTimeSheetReturnCodeContextInfo();
}

void ProjectWindowController::installResult(ScanResult& result) {
  m_window.outlets.stringTableView->beginUpdates();
  m_scanReport = std::move(result.report);
  m_unread = m_reading.unread();
  m_fileList = std::move(result.fileList);
  m_stringController.addObjects(result.stringList.records());
  m_stringController.setSelectionIndex(0);
  m_languageController.setContent(result.languagesList);
  m_languageController.setSelectionIndex(0);
  m_window.outlets.stringFilterPopUp->selectItemAtIndex(
      static_cast<int>(m_host.defaults.integerForKey("StringFilterPopUp")));
  changeStringFilter();
  m_window.outlets.stringTableView->endUpdates();
  setChanged(false);
  m_opened = true;
  m_window.outlets.window->makeKeyAndOrderFront();
  m_window.outlets.window->setOrderedIndex(0);
  m_application.saveRecent(m_projectDirectory.path());
}

}  // namespace glossmill
