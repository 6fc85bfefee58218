#include "model/Settings.h"
#include "project/ProjectWindowController.h"
#include "project/ScanRun.h"

namespace glossmill {

void ProjectWindowController::parseFileList(const FileUrl& directory, std::shared_ptr<ScanRun> scan) {
  scan->parseFileList(directory, m_scanMemory);
  onMainThread([&] { endParseFileList(scan); });
}

void ProjectWindowController::endParseFileList(std::shared_ptr<ScanRun> scan) {
  if (m_longJob.canceled().isSet()) {
    clearProject();
    didEndLongTimeSheetReturnCodeContextInfo();
    return;
  }
  m_longJob.setTitle(localized("Parsing Localizable.strings ..."));
  m_host.threads.performInBackground([this, scan] { parseLocalizableStringsList(scan); });
}

void ProjectWindowController::parseLocalizableStringsList(std::shared_ptr<ScanRun> scan) {
  if (scan->parseLocalizableStringsList() == ScanEnd::Canceled) return;
  onMainThread([&] { endParseLocalizeableStringList(*scan); });
}

void ProjectWindowController::endParseLocalizeableStringList(ScanRun& scan) {
  if (m_longJob.canceled().isSet()) {
    clearProject();
  } else {
    installResult(scan);
  }
  didEndLongTimeSheetReturnCodeContextInfo();
}

void ProjectWindowController::installResult(ScanRun& scan) {
  m_window.outlets.stringTableView->beginUpdates();
  scan.finishReport();
  m_scanReport = std::move(scan.report);
  m_readFiles = std::move(scan.readFiles);
  m_unread = scan.unread();
  ScanResult& result = scan.result;
  m_fileList = std::move(result.fileList);
  m_packages = std::move(result.packages);
  m_tables = std::move(result.tables);
  m_problems = std::move(result.problems);
  m_stringController.addObjects(result.stringList.records());
  m_stringController.setSelectionIndex(0);
  m_languageController.setContent(result.languagesList);
  m_languageController.setSelectionIndex(0);
  m_window.outlets.stringFilterPopUp->selectItemAtIndex(
      static_cast<int>(storedNumber(m_host.defaults, SettingId::StringFilter)));
  changeStringFilter();
  m_window.outlets.stringTableView->endUpdates();
  setChanged(false);
  m_opened = true;
  if (m_options.keepsJournal) keepJournal();
  goOnAsBefore();
  m_window.outlets.window->makeKeyAndOrderFront();
  m_window.outlets.window->setOrderedIndex(0);
  m_application.saveRecent(m_opening.directory.path());
  m_observers.tell(ProjectMoment::Opened);
}

}  // namespace glossmill
