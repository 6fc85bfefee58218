#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "model/Edit.h"
#include "safety/EditJournal.h"
#include "safety/KeptJournals.h"

namespace glossmill {

/// The edits of the open project that no written file holds: those of this session, in a journal on the disk too, and
/// those that former sessions left. Without a journal nothing is kept track of. Main thread.
class UnsavedWork {
 public:
  using IsOver = std::function<bool(const JournalEdit&)>;

  /// Both disks outlive this.
  UnsavedWork(FileReading& files, SaveDisk& disk) : m_disk(disk), m_kept(files, disk) {}

  /// Begins the journal of a project.
  void begin(const FileUrl& project) { m_journal = std::make_unique<EditJournal>(m_disk, project); }
  /// What was not saved stays on the disk.
  void end();
  void add(const Edit& edit);
  bool any() const { return m_journal && !m_journal->unsaved().empty(); }
  /// Those of this session.
  std::vector<JournalEdit> all() const;
  /// Nobody wants what this session has not saved.
  void discard();
  /// Returns when all of it is on the disk.
  void flush();
  /// Why it is not; nothing when it is, or soon will be.
  std::optional<Error> problem() const { return m_journal ? m_journal->problem() : std::nullopt; }

  /// Takes what former sessions with the project left.
  void takeKept(const FileUrl& project) { m_kept.take(project); }
  std::vector<JournalEdit> kept() const { return m_kept.edits(); }
  Outcome retireKept(const IsOver& isOver) { return m_kept.retire(isOver); }

  /// Whether there is anything that retire() could be for.
  bool anyToRetire() const { return any() || !m_kept.isEmpty(); }
  /// Forgets the edits that stand in a file by now, whoever made them.
  void retire(const IsOver& isOver);

 private:
  SaveDisk& m_disk;
  std::unique_ptr<EditJournal> m_journal;  ///< null while there is nothing to keep a journal of
  KeptJournals m_kept;
};

}  // namespace glossmill
