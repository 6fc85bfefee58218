#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "platform/Files.h"
#include "platform/SaveDisk.h"

namespace glossmill {

/// Something that the system did not give, or not completely.
struct UnreadPlace {
  FileUrl url;
  std::string sentence;
  EntryKind kind = EntryKind::File;  ///< Missing: nobody knows

  bool operator==(const UnreadPlace&) const = default;
};

/// Reads from a disk and remembers what that could not give: directories that cannot be listed, files that cannot be
/// opened or read, that ended early or changed meanwhile, entries that vanished between the listing and the question.
/// Links that lead nowhere are none of these. Any thread.
class WatchedReading : public FileReading {
 public:
  /// Both outlive this.
  WatchedReading(FileReading& files, SaveDisk& disk) : m_files(files), m_disk(disk) {}

  /// Called once for each directory that cannot be listed, on the thread that asks. Set it before the first reading.
  std::function<void(const FileUrl& directory, const Error& error)> onUnlisted;

  /// Each place once, in the order of the first mishap.
  std::vector<UnreadPlace> unread() const;
  void clear();
  /// False when the place is known already.
  bool note(const FileUrl& url, const std::string& sentence, EntryKind kind = EntryKind::File);

  Result<std::vector<DirectoryEntry>> list(const FileUrl& directory) override;
  EntryKind kindOf(const FileUrl& url) override;
  std::optional<FileIdentity> identityOf(const FileUrl& url) override { return m_files.identityOf(url); }
  Result<std::unique_ptr<ByteReader>> open(const FileUrl& file) override;
  void expect(std::vector<FileUrl>&& files) override { m_files.expect(std::move(files)); }

 private:
  bool isStillListed(const FileUrl& url);

  FileReading& m_files;
  SaveDisk& m_disk;
  mutable std::mutex m_mutex;
  std::vector<UnreadPlace> m_unread;
  std::unordered_set<std::string> m_paths;  ///< of m_unread
};

}  // namespace glossmill
