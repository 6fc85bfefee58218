#include "project/ProjectWindowController.h"

#include "text/Format.h"

namespace glossmill {

ProjectWindowController::ProjectWindowController(const Host& host, ApplicationServices& application)
    : ProjectParts(
          host, application, [this](const Message& message) { logText(message); },
          [this] { return m_host.interfaces.loadLongTimeSheet(*this); }) {
  m_stringController.addObserver([this](ArrayChange change) {
    if (change == ArrayChange::Content) m_counts.invalidate();
    if (change == ArrayChange::Selection) m_history.endVisit();
  });
  m_languageController.addObserver([this](ArrayChange) { m_history.endVisit(); });
  m_edits.addObserver([this](const Edit& edit, const EditStep& step) { editApplied(edit, step.kind); });
  m_edits.addObserver([this](const Edit& edit, const EditStep&) {
    if (m_rules->savesOnlyEdits()) m_edited.add(edit);
  });
  m_edits.addObserver([this](const Edit& edit, const EditStep& step) { m_history.add(edit, step); });
  m_edits.addObserver([this](const Edit& edit, const EditStep&) { m_unsaved.add(edit); });
}

ProjectWindowController::~ProjectWindowController() {
  m_host.notifications.removeObserver(this);
}

void ProjectWindowController::showWindow() {
  if (!m_window.loaded) {
    m_window = m_host.interfaces.loadProjectWindow(*this);
    windowDidLoad();
  }
  m_window.outlets.window->show();
}

void ProjectWindowController::windowDidLoad() {
  m_host.notifications.addObserver(this, kTranslationChangedNotification,
                                   [this](const void*) { stringChangedNotification(); });
  loadIsoTable();
}

void ProjectWindowController::loadIsoTable() {
  m_iso639Dict = IsoTable();
  const Result<std::string> bytes = m_host.bundle.resource("ISO-639-2", "csv");
  const Result<IsoTable> table = bytes ? IsoTable::fromCsv(bytes.value()) : Result<IsoTable>(bytes.error());
  if (table) {
    m_iso639Dict = table.value();
    return;
  }
  systemLog({"Error reading ISO file: %@", {table.error().sentence}});
  logText(localized("Error reading ISO file from bundle"));
}

void ProjectWindowController::clearProject() {
  m_application.clearLog();
  m_application.news().clear();
  m_filteredStringList.clear();
  m_stringController.removeAllObjects();
  m_fileList.clear();
  m_packages.clear();
  m_tables.clear();
  m_problems.clear();
  m_readFiles.clear();
  m_unread.clear();
  m_scanReport = ScanReport();
  m_history.clear();
  m_unsaved.end();
  m_before.reset();
  m_edited.clear();
  // The array itself stays with the choosers that were given it; the project gets an empty one.
  m_languageController.setContent(std::make_shared<LanguageArray>());
  setChanged(false);
  m_opened = false;
  m_observers.tell(ProjectMoment::Closed);
}

void ProjectWindowController::logText(const Message& message) {
  m_application.logText(message);
}

void ProjectWindowController::setChanged(bool changed) {
  m_changed = changed;
  if (m_window.loaded) m_window.outlets.window->setDocumentEdited(changed);
}

}  // namespace glossmill
