#include "dialogs/LanguageWindowController.h"

#include "model/StatusTexts.h"

namespace glossmill {

LanguageWindowController::LanguageWindowController(const Host& host, std::string_view name,
                                                   std::shared_ptr<LanguageArray> languages)
    : m_host(host), m_name(name) {
  m_languageController.setContent(std::move(languages));
}

Window& LanguageWindowController::window() {
  if (!m_interface.loaded) {
    m_interface = m_host.interfaces.loadLanguageWindow(m_name, *this);
    windowDidLoad();
  }
  return *m_interface.outlets.window;
}

void LanguageWindowController::windowDidLoad() {
  m_interface.outlets.tableView->setDoubleAction([this] { doubleClickTableView(); });
}

std::string LanguageWindowController::languageStatus() const {
  return StatusTexts(m_host.bundle).textOf(Status::Incomplete);
}

void LanguageWindowController::doubleClickTableView() {
  if (m_languageController.selectedRow()) done();
}

void LanguageWindowController::done() {
  const std::shared_ptr<Language> chosen = m_languageController.selectedObject();
  if (!chosen) return;
  endSheet();
  if (m_delegate) m_delegate->languageWindowControllerDidSelectAllStrings(*this, chosen, scope());
}

void LanguageWindowController::cancel() {
  endSheet();
  if (m_delegate) m_delegate->languageWindowControllerDidCancel(*this);
}

void LanguageWindowController::endSheet() {
  window().orderOut();
  m_host.sheets.endSheet(window());
}

ExportScope LanguageWindowController::scope() const {
  const CheckButton* button = m_interface.outlets.checkButton;
  return button && button->isOn() ? ExportScope::Untranslated : ExportScope::AllStrings;
}

}  // namespace glossmill
