#include <algorithm>

#include "project/ProjectWindowController.h"

namespace glossmill {

const HistoryStep* ProjectWindowController::undoStep() const {
  return longJobRunning() ? nullptr : m_history.undoStep();
}

const HistoryStep* ProjectWindowController::redoStep() const {
  return longJobRunning() ? nullptr : m_history.redoStep();
}

void ProjectWindowController::undo() {
  if (canUndo()) applyStep(EditKind::Undo, m_history.undo());
}

void ProjectWindowController::redo() {
  if (canRedo()) applyStep(EditKind::Undo, m_history.redo());
}

void ProjectWindowController::applyStep(EditKind kind, const std::vector<Edit>& edits) {
  m_window.outlets.stringTableView->beginUpdates();
  m_edits.beginEdits();
  for (const Edit& edit : edits) applyEdit(kind, edit);
  m_edits.endEdits();
  showEdited(edits);
  m_window.outlets.languageTableView->reloadData();
  m_window.outlets.stringTableView->reloadData();
  m_window.outlets.stringTableView->endUpdates();
  m_window.outlets.translationTextView->translationChanged();
}

/// Selects the string or the language when there is only one. A string that no row shows stays where it is.
void ProjectWindowController::showEdited(const std::vector<Edit>& edits) {
  const auto isOnly = [&edits](auto part) {
    return std::all_of(edits.begin(), edits.end(), [&](const Edit& edit) { return edit.*part == edits.front().*part; });
  };
  if (isOnly(&Edit::record)) m_stringController.selectObject(edits.front().record.get());
  if (!isOnly(&Edit::language)) return;
  const LanguageArray& languages = *languagesList();
  const auto found = std::find_if(languages.begin(), languages.end(), [&](const std::shared_ptr<Language>& language) {
    return language->code() == edits.front().language;
  });
  if (found != languages.end()) m_languageController.selectObject(found->get());
}

}  // namespace glossmill
