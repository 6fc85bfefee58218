#include "safety/WatchedReading.h"

#include <algorithm>
#include <utility>

namespace glossmill {

namespace {

/// Counts what is read, and compares it at the end with what there is.
class WatchedReader : public ByteReader {
 public:
  WatchedReader(WatchedReading& watch, SaveDisk& disk, FileUrl file, std::unique_ptr<ByteReader> inner)
      : m_watch(watch), m_disk(disk), m_file(std::move(file)), m_inner(std::move(inner)) {}

  Result<std::size_t> read(std::span<char> buffer) override {
    const Result<std::size_t> got = m_inner->read(buffer);
    if (!got) {
      m_watch.note(m_file, got.error().sentence);
    } else if (got.value() == 0) {
      lookAtEnd();
    } else {
      m_bytes += got.value();
    }
    return got;
  }
  /// What is at hand was whole, and the file on the disk was the same a moment ago, when this was opened.
  std::optional<std::string_view> textAtHand() override { return m_inner->textAtHand(); }

 private:
  void lookAtEnd() {
    if (std::exchange(m_isAtEnd, true)) return;
    const Result<std::optional<FileStamp>> now = m_disk.stampOf(m_file);
    if (!now) {
      m_watch.note(m_file, now.error().sentence);
    } else if (!now.value()) {
      m_watch.note(m_file, "It vanished while it was read.");
    } else if (now.value()->size != m_bytes) {
      m_watch.note(m_file, "It was not read to its end, or it changed meanwhile.");
    }
  }

  WatchedReading& m_watch;
  SaveDisk& m_disk;
  FileUrl m_file;
  std::unique_ptr<ByteReader> m_inner;
  std::uint64_t m_bytes = 0;
  bool m_isAtEnd = false;
};

}  // namespace

std::vector<UnreadPlace> WatchedReading::unread() const {
  const std::lock_guard lock(m_mutex);
  return m_unread;
}

void WatchedReading::clear() {
  const std::lock_guard lock(m_mutex);
  m_unread.clear();
  m_paths.clear();
}

bool WatchedReading::note(const FileUrl& url, const std::string& sentence, EntryKind kind) {
  const std::lock_guard lock(m_mutex);
  if (!m_paths.insert(url.path()).second) return false;
  m_unread.push_back({url, sentence, kind});
  return true;
}

Result<std::vector<DirectoryEntry>> WatchedReading::list(const FileUrl& directory) {
  Result<std::vector<DirectoryEntry>> entries = m_files.list(directory);
  if (entries) return entries;
  const bool isNew = note(directory, entries.error().sentence, EntryKind::Directory);
  if (isNew && onUnlisted) onUnlisted(directory, entries.error());
  return entries;
}

/// A disk says of what it cannot look at that it is missing, so it is asked once more, and why.
EntryKind WatchedReading::kindOf(const FileUrl& url) {
  const EntryKind kind = m_files.kindOf(url);
  if (kind != EntryKind::Missing) return kind;
  const Result<std::optional<FileStamp>> stamp = m_disk.stampOf(url);
  if (!stamp) {
    note(url, stamp.error().sentence, EntryKind::Missing);
  } else if (stamp.value()) {
    note(url, "The system did not say what it is.", EntryKind::Missing);
  } else if (!isStillListed(url)) {
    note(url, "It vanished while the project was read.", EntryKind::Missing);
  }
  return kind;
}

/// As a link that leads nowhere is.
bool WatchedReading::isStillListed(const FileUrl& url) {
  const auto entries = m_files.list(url.parent());
  if (!entries) return false;
  return std::any_of(entries.value().begin(), entries.value().end(),
                     [&url](const DirectoryEntry& entry) { return entry.name == url.lastPathComponent(); });
}

Result<std::unique_ptr<ByteReader>> WatchedReading::open(const FileUrl& file) {
  Result<std::unique_ptr<ByteReader>> opened = m_files.open(file);
  if (!opened) {
    note(file, opened.error().sentence);
    return opened;
  }
  return std::unique_ptr<ByteReader>(std::make_unique<WatchedReader>(*this, m_disk, file, std::move(opened.value())));
}

}  // namespace glossmill
