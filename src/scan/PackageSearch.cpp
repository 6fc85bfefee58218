#include "scan/PackageSearch.h"

#include "scan/DirectoryTrail.h"

namespace glossmill {

namespace {

class PackageSearch {
 public:
  PackageSearch(FileReading& files, const CancelFlag& canceled)
      : m_files(files), m_canceled(canceled), m_trail(files) {}

  std::optional<FileUrl> search(const FileUrl& directory, const DirectoryEntry& listed) {
    const auto entries = m_files.list(directory);
    if (!entries) return std::nullopt;
    m_trail.enter(directory, listed);
    std::optional<FileUrl> found;
    for (const DirectoryEntry& entry : entries.value()) {
      if (found || m_canceled.isSet()) break;
      found = searchEntry(directory, entry);
    }
    m_trail.leave();
    return found;
  }

  const std::optional<FileUrl>& cutOff() const { return m_trail.cutOff(); }

 private:
  /// What the listing said of an entry may be over by now. It is asked before a package counts and for what was out of
  /// reach; any other directory that is gone cannot be listed, and that is all there is to it.
  std::optional<FileUrl> searchEntry(const FileUrl& directory, const DirectoryEntry& entry) {
    const bool isPackage = extensionOfName(entry.name) == "xcodeproj";
    if (entry.kind == EntryKind::File && !isPackage) return std::nullopt;
    const FileUrl url = directory.appending(entry.name);
    const bool isAsked = isPackage || entry.kind == EntryKind::Missing;
    if (isAsked && m_files.kindOf(url) != EntryKind::Directory) return std::nullopt;
    if (isPackage) return url;
    if (m_trail.keepsOut(url, entry)) return std::nullopt;
    return search(url, entry);
  }

  FileReading& m_files;
  const CancelFlag& m_canceled;
  DirectoryTrail m_trail;
};

}  // namespace

std::optional<FileUrl> findProjectPackage(FileReading& files, const FileUrl& directory, const CancelFlag& canceled,
                                          const std::function<void(const FileUrl&)>& cutOff) {
  PackageSearch search(files, canceled);
  std::optional<FileUrl> found = search.search(directory, {});
  if (cutOff && search.cutOff()) cutOff(*search.cutOff());
  return found;
}

}  // namespace glossmill
