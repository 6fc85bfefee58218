#include "scan/PackageSearch.h"

#include "scan/DirectoryTrail.h"

namespace glossmill {

namespace {

class PackageSearch {
 public:
  PackageSearch(FileReading& files, const CancelFlag& canceled)
      : m_files(files), m_canceled(canceled), m_trail(files) {}

  std::optional<FileUrl> search(const FileUrl& directory) {
    const auto entries = m_files.list(directory);
    if (!entries) return std::nullopt;
    m_trail.enter(directory);
    std::optional<FileUrl> found;
    for (const DirectoryEntry& entry : entries.value()) {
      if (found || m_canceled.isSet()) break;
      if (entry.kind == EntryKind::Directory) found = searchEntry(directory, entry);
    }
    m_trail.leave();
    return found;
  }

 private:
  std::optional<FileUrl> searchEntry(const FileUrl& directory, const DirectoryEntry& entry) {
    const FileUrl url = directory.appending(entry.name);
    if (url.pathExtension() == "xcodeproj") return url;
    if (m_trail.leadsBack(url, entry)) return std::nullopt;
    return search(url);
  }

  FileReading& m_files;
  const CancelFlag& m_canceled;
  DirectoryTrail m_trail;
};

}  // namespace

std::optional<FileUrl> findProjectPackage(FileReading& files, const FileUrl& directory, const CancelFlag& canceled) {
  return PackageSearch(files, canceled).search(directory);
}

}  // namespace glossmill
