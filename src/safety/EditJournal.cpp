#include "safety/EditJournal.h"

#include <atomic>
#include <string>

#include "safety/ProjectState.h"

namespace glossmill {

namespace {

/// Sorts by time; no other process and no other project of this one has the same.
std::string newJournalName(SaveDisk& disk) {
  static std::atomic<unsigned> count = 0;
  return std::to_string(disk.now()) + "-" + std::to_string(disk.processId()) + "-" + std::to_string(++count);
}

}  // namespace

Result<FileUrl> journalsOf(SaveDisk& disk, const FileUrl& project) {
  const Result<FileUrl> state = stateDirectoryOf(disk, project);
  return state ? Result<FileUrl>(state.value().appending("journals")) : state;
}

EditJournal::EditJournal(SaveDisk& disk, const FileUrl& project) {
  const Result<FileUrl> journals = journalsOf(disk, project);
  if (!journals) {
    m_withoutPlace = journals.error();
    return;
  }
  const FileUrl directory = journals.value().appending(newJournalName(disk));
  m_writer = std::make_unique<JournalWriter>(disk, directory.appending("edits"));
}

/// Edits that led back to what was there are nothing that anybody would want again.
EditJournal::~EditJournal() {
  if (m_hasFile && m_unsaved.empty()) m_writer->replace({});
}

/// What could not be written is still in memory, and is tried again with the next edit.
void EditJournal::add(const JournalEdit& edit) {
  m_unsaved.add(edit);
  if (!m_writer) return;
  m_hasFile = true;
  if (m_writer->problem()) {
    m_writer->replace(m_unsaved.journal());
  } else {
    m_writer->append(journalLine(edit));
  }
}

void EditJournal::retire(const std::function<bool(const JournalEdit&)>& isOver) {
  if (m_unsaved.retire(isOver) != 0 && m_writer) m_writer->replace(m_unsaved.journal());
}

void EditJournal::discard() {
  if (m_unsaved.empty()) return;
  m_unsaved.clear();
  if (m_writer) m_writer->replace({});
}

void EditJournal::flush() {
  if (m_writer) m_writer->flush();
}

std::optional<Error> EditJournal::problem() const {
  return m_writer ? m_writer->problem() : m_withoutPlace;
}

}  // namespace glossmill
