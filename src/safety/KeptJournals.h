#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/Files.h"
#include "platform/SaveDisk.h"
#include "safety/JournalText.h"

namespace glossmill {

/// The journals of sessions with a project that have ended and left edits that no save wrote. While this lives no other
/// process takes them; those that another one has taken, or still writes, are not seen. Main thread.
class KeptJournals {
 public:
  /// Both disks outlive this.
  KeptJournals(FileReading& files, SaveDisk& disk) : m_files(files), m_disk(disk) {}

  /// Takes the journals that there are.
  void take(const FileUrl& project);
  /// Their edits, one for each place and session, those of the newest session first.
  std::vector<JournalEdit> edits() const;
  bool isEmpty() const { return m_journals.empty(); }
  /// Forgets the edits for which it holds, on the disk too. An error leaves them there.
  Outcome retire(const std::function<bool(const JournalEdit&)>& isOver);
  /// Leaves the rest to whoever comes next.
  void release() { m_journals.clear(); }

 private:
  struct Journal {
    FileUrl directory;
    std::unique_ptr<DirectoryLock> lock;
    std::vector<JournalEdit> edits;
  };

  void takeOne(const FileUrl& directory);
  Outcome write(const Journal& journal);

  FileReading& m_files;
  SaveDisk& m_disk;
  std::vector<Journal> m_journals;
};

}  // namespace glossmill
