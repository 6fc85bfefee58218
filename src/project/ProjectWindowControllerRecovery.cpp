#include "project/ProjectWindowController.h"
#include "project/WrittenPlaces.h"

namespace glossmill {

/// What stands in the files is not worth a word: the program ended before it could note that it was saved.
void ProjectWindowController::keepJournal() {
  m_unsaved.begin(m_projectDirectory);
  m_unsaved.takeKept(m_projectDirectory);
  retireWhatIsThere();
}

void ProjectWindowController::takeKeptEdits() {
  m_unsaved.takeKept(m_projectDirectory);
}

std::vector<RecoverableEdit> ProjectWindowController::recoverableEdits() const {
  return glossmill::recoverableEdits(m_unsaved.kept(), recordsByPlace(), *languagesList());
}

/// Where a journal is kept, the edits are in it before they leave that of their own session.
void ProjectWindowController::recover(const std::vector<RecoverableEdit>& chosen) {
  std::vector<Edit> edits;
  for (const RecoverableEdit& one : chosen) {
    if (one.canBeApplied()) edits.push_back(editOf(one.record, LanguageCode(one.edit.language), one.edit.after));
  }
  if (edits.empty()) return;
  applyStep(EditKind::Recovery, edits);
  if (!m_options.keepsJournal) return;
  m_unsaved.flush();
  if (!m_unsaved.problem()) retireWhatIsThere();
}

bool ProjectWindowController::discardRecoverableEdits() {
  return m_unsaved.retireKept([](const JournalEdit&) { return true; }).ok();
}

void ProjectWindowController::retireWhatIsThere() {
  if (m_unsaved.kept().empty()) return;
  const RecordsByPlace records = recordsByPlace();
  static_cast<void>(m_unsaved.retireKept([&records](const JournalEdit& edit) {
    return textNow(records.find(edit.table, edit.key).get(), edit.language) == edit.after;
  }));
}

std::set<const LocalizeString*> ProjectWindowController::unsavedStrings() const {
  std::set<const LocalizeString*> strings;
  if (!hasUnsavedEdits()) return strings;
  const RecordsByPlace records = recordsByPlace();
  for (const JournalEdit& edit : m_unsaved.all()) strings.insert(records.find(edit.table, edit.key).get());
  return strings;
}

RecordsByPlace ProjectWindowController::recordsByPlace() const {
  RecordsByPlace records;
  records.add(stringList());
  records.add(m_filteredStringList);
  return records;
}

}  // namespace glossmill
