#include <utility>

#include "project/ProjectWindowController.h"

namespace glossmill {

namespace {

/// Selects the first object of which this is true; the selection stays when there is none.
template <typename Object, typename Predicate>
void selectFirst(ArrayController<Object>& controller, const Predicate& isWanted) {
  for (std::size_t at = 0; at < controller.arrangedCount(); ++at) {
    if (isWanted(*controller.arrangedObject(at))) return controller.setSelectionIndex(at);
  }
}

}  // namespace

bool ProjectWindowController::reloadProject() {
  if (!m_opened) return false;
  m_window.outlets.window->clearFirstResponder();
  if (m_changed && !mayLoseEdits()) return false;
  const std::shared_ptr<LocalizeString> string = selectedString();
  const std::shared_ptr<Language> language = selectedLanguage();
  m_selectedBefore = {string ? string->name() : "", language ? language->iso639() : ""};
  clearProject();
  startScan(m_projectDirectory, m_options);
  return true;
}

bool ProjectWindowController::mayLoseEdits() {
  AlertRequest question;
  question.message = localized("The project is read anew, and the translations that were not saved are lost. Go on?");
  question.defaultButton = localized("Cancel");
  question.alternateButton = localized("Reload");
  question.escape = AlertAnswer::Default;
  return m_host.panels.runAlert(question) == AlertAnswer::Alternate;
}

void ProjectWindowController::selectAsBefore() {
  const std::optional<SelectedPlace> before = std::exchange(m_selectedBefore, std::nullopt);
  if (!before) return;
  selectFirst(m_stringController, [&](const LocalizeString& string) { return string.name() == before->key; });
  selectFirst(m_languageController, [&](const Language& language) { return language.iso639() == before->language; });
}

}  // namespace glossmill
