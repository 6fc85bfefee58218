#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "xcode/FolderListings.h"

namespace glossmill {

/// Which directories are not gone into.
enum class FolderKinds {
  Plain,    ///< packages and bundles of every kind
  Bundles,  ///< the same, but for a `.bundle`
};

/// Says whether a directory of this name is a package or a bundle, and so no folder to look for a project's files in.
bool isClosedFolder(std::string_view name, FolderKinds kinds);

/// Visits directories, those that links lead to once only, so that links in circles do no harm.
class FolderWalk {
 public:
  FolderWalk(FolderListings& folders, FolderKinds kinds) : m_folders(folders), m_kinds(kinds) {}

  /// Whether this entry of a listing is a directory to go into.
  bool goesInto(const std::string& path, const DirectoryEntry& entry);

  /// Calls `visit` with every file below the directory, in the order of the listings.
  void eachFile(const std::string& directory, const std::function<void(const std::string& path)>& visit);

 private:
  FolderListings& m_folders;
  FolderKinds m_kinds;
  std::set<std::pair<std::uint64_t, std::uint64_t>> m_followed;  ///< where links led to
};

}  // namespace glossmill
