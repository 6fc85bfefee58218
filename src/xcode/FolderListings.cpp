#include "xcode/FolderListings.h"

#include <algorithm>

namespace glossmill {

const std::vector<DirectoryEntry>* FolderListings::entries(const std::string& directory) {
  const auto known = m_folders.find(directory);
  if (known != m_folders.end()) return known->second ? &*known->second : nullptr;
  Folder listed = list(directory);
  const Folder& kept = m_folders.emplace(directory, std::move(listed)).first->second;
  return kept ? &*kept : nullptr;
}

FolderListings::Folder FolderListings::list(const std::string& directory) {
  if (directory != m_root && kindOf(directory) != EntryKind::Directory) return std::nullopt;
  Result<std::vector<DirectoryEntry>> listed = m_files.list(FileUrl(directory));
  if (!listed) return std::nullopt;
  return std::move(listed.value());
}

/// Outside of the root, and for names that no listing shows, the disk itself is asked.
EntryKind FolderListings::kindOf(const std::string& path) {
  const std::string_view name = nameOfPath(path);
  if (path == m_root) return EntryKind::Directory;
  if (!isInside(path) || name.starts_with('.')) {
    return m_files.identityOf(FileUrl(path)) ? m_files.kindOf(FileUrl(path)) : EntryKind::Missing;
  }
  const std::vector<DirectoryEntry>* beside = entries(std::string(directoryOf(path)));
  if (!beside) return EntryKind::Missing;
  const auto found = std::lower_bound(
      beside->begin(), beside->end(), name,
      [](const DirectoryEntry& entry, std::string_view wanted) { return std::string_view(entry.name) < wanted; });
  return found != beside->end() && found->name == name ? found->kind : EntryKind::Missing;
}

bool FolderListings::isInside(std::string_view path) const {
  if (m_root == "/") return true;
  return path.size() > m_root.size() && path.starts_with(m_root) && path[m_root.size()] == '/';
}

std::string pathInside(std::string_view directory, std::string_view name) {
  std::string path(directory);
  if (!path.ends_with('/')) path += '/';
  return path += name;
}

std::string_view directoryOf(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  return slash == 0 || slash == std::string_view::npos ? std::string_view("/") : path.substr(0, slash);
}

std::string_view nameOfPath(std::string_view path) {
  return path.substr(path.rfind('/') + 1);
}

}  // namespace glossmill
