#pragma once

#include <mutex>
#include <string>
#include <vector>

#include "platform/Files.h"
#include "platform/SaveDisk.h"

namespace glossmill {

/// Something that the system did not give, or not completely.
struct UnreadPlace {
  FileUrl url;
  std::string sentence;

  bool operator==(const UnreadPlace&) const = default;
};

/// Reads from a disk and remembers what that could not give: directories that cannot be listed, files that cannot be
/// opened or read, that ended early or changed meanwhile, entries that vanished between the listing and the question.
/// Links that lead nowhere are none of these. Any thread.
class WatchedReading : public FileReading {
 public:
  /// Both outlive this.
  WatchedReading(FileReading& files, SaveDisk& disk) : m_files(files), m_disk(disk) {}

  /// Each place once, in the order of the first mishap.
  std::vector<UnreadPlace> unread() const;
  void clear();
  void note(const FileUrl& url, const std::string& sentence);

  Result<std::vector<DirectoryEntry>> list(const FileUrl& directory) override;
  EntryKind kindOf(const FileUrl& url) override;
  std::optional<FileIdentity> identityOf(const FileUrl& url) override { return m_files.identityOf(url); }
  Result<std::unique_ptr<ByteReader>> open(const FileUrl& file) override;

 private:
  bool isStillListed(const FileUrl& url);

  FileReading& m_files;
  SaveDisk& m_disk;
  mutable std::mutex m_mutex;
  std::vector<UnreadPlace> m_unread;
};

}  // namespace glossmill
