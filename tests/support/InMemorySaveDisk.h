#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/SaveDisk.h"
#include "support/InMemoryFiles.h"

namespace glossmill {

/// Saving on the disk in memory. Each operation that changes the disk is noted, can fail, and can be the last one that
/// the process does. What a journal needs may come from any thread.
class InMemorySaveDisk : public SaveDisk {
 public:
  /// Thrown in the place of a kill: nobody tidies up after it.
  struct Killed {};

  /// `files` outlives this.
  explicit InMemorySaveDisk(InMemoryFiles& files) : m_files(files) {}

  // ---- What is to happen ----

  /// The operation with this number, from 1, fails with the sentence.
  void failAt(int operation, std::string_view sentence = "The disk is broken.") { m_failure = {operation, sentence}; }
  /// The question with this number fails: where a path leads, what a file's stamp is, a lock, or a private directory.
  void failQuestion(int question, std::string_view sentence = "The disk is broken.") {
    m_questionFailure = {question, sentence};
  }
  void killBefore(int operation) { m_killed = operation; }
  /// Called before each operation is noted.
  std::function<void(const std::string&)> onOperation;
  /// The operation that is about to begin is not done.
  void killNow() { m_killed = m_done; }
  /// The process that was killed is gone, and another one goes on.
  void goOn();
  void setStateDirectory(std::optional<FileUrl> directory) { m_stateDirectory = std::move(directory); }

  // ---- What was done ----

  /// "prepare /x", "rename /x", "mkdir /x", "remove /x", "keep /x", in order.
  const std::vector<std::string>& operations() const { return m_operations; }
  int questions() const { return m_asked; }
  bool holdsLock() const { return !m_locked.empty(); }

  // ---- The disk itself ----

  Result<FileUrl> resolve(const FileUrl& url) override;
  Result<std::optional<FileStamp>> stampOf(const FileUrl& file) override;
  Result<std::unique_ptr<PreparedWrite>> prepare(const FileUrl& file, const BytePieces& bytes,
                                                 const WriteLimits& limits) override;
  Outcome createDirectory(const FileUrl& directory, bool intermediate, const WriteLimits& limits) override;
  std::vector<FileUrl> abandonedWrites(const FileUrl& directory) override;
  Outcome rename(const FileUrl& from, const FileUrl& to) override;
  Outcome remove(const FileUrl& url) override;
  Result<FileUrl> stateDirectory() override;
  Outcome createPrivateDirectory(const FileUrl& directory) override;
  Outcome writePrivate(const FileUrl& file, const BytePieces& bytes) override;
  Result<std::unique_ptr<GrowingFile>> openGrowing(const FileUrl& file) override;
  Result<std::unique_ptr<DirectoryLock>> tryLock(const FileUrl& directory) override;
  std::int64_t processId() const override { return 7; }
  std::int64_t now() const override { return 1795283100; }

 private:
  friend class InMemoryWrite;
  friend class InMemoryLock;

  struct Failure {
    int operation = 0;
    std::string_view sentence;
  };

  Outcome begin(const std::string& operation);
  Outcome ask();
  std::optional<FileStamp> knownStampOf(const FileUrl& file);
  Outcome within(const FileUrl& url, const WriteLimits& limits) const;

  InMemoryFiles& m_files;
  std::optional<FileUrl> m_stateDirectory = FileUrl("/state/glossmill");
  std::mutex m_mutex;  ///< for what is noted and locked
  std::vector<std::string> m_operations;
  std::vector<FileUrl> m_temporaries;
  int m_done = 0;
  int m_killed = 0;
  bool m_isDead = false;
  Failure m_failure;
  std::atomic<int> m_asked = 0;
  Failure m_questionFailure;
  std::set<std::string> m_locked;  ///< paths of directories
  int m_written = 0;
};

}  // namespace glossmill
