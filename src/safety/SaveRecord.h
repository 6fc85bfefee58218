#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "safety/SavedVersions.h"

namespace glossmill {

/// What is noted of one save while it is under way, so that a kill leaves nothing that nobody knows of. Main thread.
class SaveRecord {
 public:
  /// `empty` says all about the save but its files; both disks outlive this.
  SaveRecord(Files& files, SaveDisk& disk, SaveManifest empty)
      : m_versions(files, disk, empty.project), m_empty(std::move(empty)) {}

  /// Directories are made before there is anything to finish or to take back. A kill behind that leaves a save without
  /// files, and whoever looks at it takes them away again. Where nothing can be noted, that comes to light later.
  void announce(const std::vector<FileUrl>& directories);
  /// From here on a kill leaves something to finish or to take back.
  Outcome note(const std::vector<SavedFile>& files, const std::vector<FileUrl>& directories);
  /// For a save of which nothing came.
  void forget();
  /// The save is done; false when that cannot be noted.
  bool finish();

  SavedVersions& versions() { return m_versions; }
  /// Of what was announced or noted.
  const std::optional<std::string>& id() const { return m_id; }

 private:
  SavedVersions m_versions;
  const SaveManifest m_empty;
  std::optional<std::string> m_id;
};

}  // namespace glossmill
