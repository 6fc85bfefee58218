#pragma once

#include <array>
#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/BriefYield.h"
#include "platform/FileStamp.h"
#include "platform/Files.h"
#include "platform/SaveDisk.h"

namespace glossmill {

/// A disk that reads ahead: of the files that are expected a thread of its own brings the next few into memory, small
/// ones only, and decodes them, and open() finds them there. Everything else goes straight to the disk below, at the
/// moment at which it is asked for, and so does a file that is not there yet, that could not be read, or that has
/// another stamp by now. The thread starts when many files were expected, and only where it has a processor for itself.
/// To be used by one thread.
class ReadAhead : public FileReading {
 public:
  /// Both outlive this.
  ReadAhead(FileReading& files, SaveDisk& disk, std::optional<unsigned> processors = std::nullopt)
      : m_files(files), m_disk(disk), m_processors(processors) {}
  ReadAhead(const ReadAhead&) = delete;
  ReadAhead& operator=(const ReadAhead&) = delete;
  ~ReadAhead() override;

  Result<std::vector<DirectoryEntry>> list(const FileUrl& directory) override;
  EntryKind kindOf(const FileUrl& url) override { return m_files.kindOf(url); }
  std::optional<FileIdentity> identityOf(const FileUrl& url) override { return m_files.identityOf(url); }
  Result<std::unique_ptr<ByteReader>> open(const FileUrl& file) override;
  void expect(std::vector<FileUrl>&& files) override;

  static constexpr std::size_t kFilesAlone = 64;          ///< expected before the thread starts
  static constexpr std::size_t kLargestFile = 96 * 1024;  ///< bytes

 private:
  static constexpr std::size_t kPlaces = 32;
  using Lock = std::unique_lock<std::mutex>;

  enum class State {
    Free,
    Reading,  ///< by the thread
    Dropped,  ///< by the thread, but nobody wants it any more
    Ready,
    Open,  ///< a reader gives its bytes
  };

  /// Room for the bytes of one file.
  struct Place {
    State state = State::Free;
    FileUrl file;
    FileStamp stamp;
    std::vector<char> bytes;  ///< at least the file's; kept for the next
    std::string decoded;      ///< where the text is not in the bytes
    std::string_view text;
  };

  class Reader;

  bool startThread();
  Place* placeOf(const FileUrl& file);
  void forget(const FileUrl& file);
  bool isStill(const Place& place);
  void give(Place& place);
  void wakeThread(Lock lock);
  bool hasNothingLeft() const;
  void rouseThread();
  Place* freePlace();
  bool canRead() { return !m_expected.empty() && freePlace(); }
  void run();
  void waitForWork(Lock& lock);
  FileUrl takeNext();
  bool read(Place& place);
  bool readBytes(Place& place);
  static bool decode(Place& place);
  bool isSettled(const FileStamp& stamp) const;

  FileReading& m_files;
  SaveDisk& m_disk;
  std::optional<unsigned> m_processors;  ///< nothing until somebody asks the system
  std::size_t m_filesAlone = 0;

  std::mutex m_mutex;
  std::condition_variable m_wanted;  ///< the thread sleeps on this
  std::deque<FileUrl> m_expected;    ///< not begun
  std::array<Place, kPlaces> m_places;
  std::atomic<std::size_t> m_expectations = 0;  ///< so far
  bool m_isRoused = false;                      ///< something may be expected soon
  bool m_ends = false;
  BriefYield m_yield;
  std::thread m_thread;
};

}  // namespace glossmill
