#include <set>
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
  if (!m_opened || !mayReadAnew()) return false;
  readAnew();
  return true;
}

bool ProjectWindowController::mayReadAnew() {
  m_window.outlets.window->clearFirstResponder();
  m_unsaved.flush();
  const bool isKept = m_options.keepsJournal && !m_unsaved.problem();
  if (isKept || !(m_changed || hasUnsavedEdits())) return true;
  AlertRequest question;
  question.message = localized("The project is read anew, and the translations that were not saved are lost. Go on?");
  question.defaultButton = localized("Cancel");
  question.alternateButton = localized("Reload");
  question.escape = AlertAnswer::Default;
  return m_host.panels.runAlert(question) == AlertAnswer::Alternate;
}

void ProjectWindowController::readAnew(const FileUrl& opened) {
  const std::shared_ptr<LocalizeString> string = selectedString();
  const std::shared_ptr<Language> language = selectedLanguage();
  BeforeReading before{string ? string->name() : "", language ? language->iso639() : "", m_unsaved.all()};
  clearProject();
  m_before = std::move(before);
  startScan(FileUrl(opened), ProjectOptions(m_opening.options));
}

void ProjectWindowController::goOnAsBefore() {
  const std::optional<BeforeReading> before = std::exchange(m_before, std::nullopt);
  if (!before) return;
  selectFirst(m_stringController, [&](const LocalizeString& string) { return string.name() == before->key; });
  selectFirst(m_languageController, [&](const Language& language) { return language.iso639() == before->language; });
  applyAgain(before->edits);
}

/// What other sessions left is not applied unasked.
void ProjectWindowController::applyAgain(const std::vector<JournalEdit>& edits) {
  const std::set<JournalEdit> known(edits.begin(), edits.end());
  std::vector<RecoverableEdit> own = recoverableEdits();
  std::erase_if(own, [&known](const RecoverableEdit& one) {
    return !known.contains(one.edit) || one.fit != RecoverableEdit::Fit::Applies;
  });
  recover(own);
}

}  // namespace glossmill
