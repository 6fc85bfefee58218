#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Files.h"

namespace glossmill {

/// The directories of a project, each listed once at most. What is not there is never asked for: it is looked up in the
/// directory that would hold it. Paths are absolute and normalised.
class FolderListings {
 public:
  /// `files` outlives this; `root` exists.
  FolderListings(FileReading& files, std::string root) : m_files(files), m_root(std::move(root)) {}

  /// Sorted by the bytes of the names; null when there is no such directory, or it cannot be listed.
  const std::vector<DirectoryEntry>* entries(const std::string& directory);
  EntryKind kindOf(const std::string& path);

  const std::string& root() const { return m_root; }
  FileReading& files() const { return m_files; }

 private:
  using Folder = std::optional<std::vector<DirectoryEntry>>;

  Folder list(const std::string& directory);
  bool isInside(std::string_view path) const;

  FileReading& m_files;
  std::string m_root;
  std::unordered_map<std::string, Folder> m_folders;
};

/// "/a/b" and "c" give "/a/b/c".
std::string pathInside(std::string_view directory, std::string_view name);

/// "/a" for "/a/b"; "/" for "/a".
std::string_view directoryOf(std::string_view path);

/// "b" for "/a/b".
std::string_view nameOfPath(std::string_view path);

}  // namespace glossmill
