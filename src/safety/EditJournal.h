#pragma once

#include <functional>
#include <memory>

#include "safety/JournalWriter.h"
#include "safety/UnsavedEdits.h"

namespace glossmill {

/// The directory with the journals of a project.
Result<FileUrl> journalsOf(SaveDisk& disk, const FileUrl& project);

/// The edits of one session with a project that no written file holds, in memory and soon on the disk, where they stay
/// when the session ends. Main thread.
class EditJournal {
 public:
  /// `disk` outlives this. Nothing is on the disk before the first edit.
  EditJournal(SaveDisk& disk, const FileUrl& project);
  EditJournal(const EditJournal&) = delete;
  EditJournal& operator=(const EditJournal&) = delete;
  ~EditJournal();

  void add(const JournalEdit& edit);
  /// Forgets the edits for which it holds.
  void retire(const std::function<bool(const JournalEdit&)>& isOver);
  void discard();
  const UnsavedEdits& unsaved() const { return m_unsaved; }
  /// Returns when everything is on the disk, or could not be brought there.
  void flush();
  /// Why the disk does not have everything; nothing when it has, or will have within a second.
  std::optional<Error> problem() const;

 private:
  UnsavedEdits m_unsaved;
  bool m_hasFile = false;
  std::optional<Error> m_withoutPlace;
  std::unique_ptr<JournalWriter> m_writer;  ///< null without a place for it
};

}  // namespace glossmill
