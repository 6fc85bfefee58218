#pragma once

#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include "platform/SaveDisk.h"

namespace glossmill {

/// Brings the lines of a journal to the disk on a thread of its own, so that an edit costs the main thread next to
/// nothing: within a quarter of a second they are flushed. The thread starts with the first line. From then on the
/// journal's directory, which nothing else lies in, is locked, so that others see that its process still runs; it goes
/// away when the journal is empty at the end.
class JournalWriter {
 public:
  /// `disk` outlives this.
  JournalWriter(SaveDisk& disk, FileUrl file) : m_disk(disk), m_file(std::move(file)) {}
  JournalWriter(const JournalWriter&) = delete;
  JournalWriter& operator=(const JournalWriter&) = delete;
  /// What is left is written before it returns.
  ~JournalWriter();

  /// Returns at once.
  void append(std::string_view lines);
  /// The journal is to hold nothing but this; an empty one has no file. Returns at once.
  void replace(std::string text);
  /// Returns when everything is on the disk, or could not be brought there.
  void flush();
  /// Why the last write failed; nothing when it did not. Any thread.
  std::optional<Error> problem() const;

 private:
  struct Work {
    std::optional<std::string> whole;  ///< takes the place of what the journal held
    std::string lines;                 ///< behind it
    bool empty() const { return !whole && lines.empty(); }
  };

  void hand(Work work);
  void run();
  Outcome write(const Work& work);
  Outcome takeDirectory();
  Outcome replaceWhole(const std::string& text);

  SaveDisk& m_disk;
  const FileUrl m_file;
  // Of the thread.
  std::unique_ptr<DirectoryLock> m_lock;
  std::unique_ptr<GrowingFile> m_growing;
  bool m_isEmpty = true;

  mutable std::mutex m_mutex;
  std::condition_variable m_arrived;
  std::condition_variable m_written;
  Work m_work;
  bool m_isWriting = false;
  bool m_isUrgent = false;
  bool m_ends = false;
  std::optional<Error> m_problem;
  std::thread m_thread;
};

}  // namespace glossmill
