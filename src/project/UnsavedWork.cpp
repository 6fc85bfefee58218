#include "project/UnsavedWork.h"

#include "model/RecordsByPlace.h"

namespace glossmill {

void UnsavedWork::end() {
  m_journal.reset();
  m_kept.release();
}

void UnsavedWork::add(const Edit& edit) {
  if (!m_journal) return;
  const LocalizeString& record = *edit.record;
  m_journal->add(
      {m_disk.now(), std::string(tableIdOf(record)), record.name(), edit.language.text(), edit.before, edit.after});
}

std::vector<JournalEdit> UnsavedWork::all() const {
  return m_journal ? m_journal->unsaved().all() : std::vector<JournalEdit>();
}

void UnsavedWork::discard() {
  if (m_journal) m_journal->discard();
}

void UnsavedWork::flush() {
  if (m_journal) m_journal->flush();
}

/// What a disk does not let go of is found to stand in its file when the project is opened the next time.
void UnsavedWork::retire(const IsOver& isOver) {
  if (m_journal) m_journal->retire(isOver);
  static_cast<void>(m_kept.retire(isOver));
}

}  // namespace glossmill
