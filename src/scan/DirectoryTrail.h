#pragma once

#include <vector>

#include "platform/Files.h"

namespace glossmill {

/// The directories that a recursive visit is inside of, so that a link back to one of them is not entered again.
class DirectoryTrail {
 public:
  explicit DirectoryTrail(FileReading& files) : m_files(files) {}

  /// True when the listed `entry`, which lies at `url`, is a link to a directory of the trail.
  bool leadsBack(const FileUrl& url, const DirectoryEntry& entry) const;

  void enter(const FileUrl& directory) { m_directories.push_back(directory); }
  void leave() { m_directories.pop_back(); }

 private:
  FileReading& m_files;
  std::vector<FileUrl> m_directories;
};

}  // namespace glossmill
