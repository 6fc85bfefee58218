#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "platform/Files.h"

namespace glossmill {

/// The directories that a recursive visit is inside of, so that a link back to one of them is not entered again. Links
/// that lead into one another in other ways would make a small tree endless, so that only so many directories are
/// entered through links, and through directories behind them.
class DirectoryTrail {
 public:
  static constexpr std::size_t kMostThroughLinks = 20'000;

  explicit DirectoryTrail(FileReading& files, std::size_t mostThroughLinks = kMostThroughLinks)
      : m_files(files), m_mostThroughLinks(mostThroughLinks) {}

  /// True when the listed `entry`, which lies at `url`, is a link to a directory of the trail.
  bool leadsBack(const FileUrl& url, const DirectoryEntry& entry) const;
  /// The same, or too many were entered through links before it. What is not kept out counts as entered, also when it
  /// cannot be listed then.
  bool keepsOut(const FileUrl& url, const DirectoryEntry& entry);

  void enter(const FileUrl& directory, const DirectoryEntry& entry = {});
  void leave() { m_places.pop_back(); }

  /// The first directory that was one too many.
  const std::optional<FileUrl>& cutOff() const { return m_cutOff; }

 private:
  struct Place {
    FileUrl url;
    bool isThroughLink = false;
    mutable std::optional<std::optional<FileIdentity>> identity = {};  ///< once it was asked for
  };

  const std::optional<FileIdentity>& identityOf(const Place& place) const;
  bool isThroughLink(const DirectoryEntry& entry) const;

  FileReading& m_files;
  const std::size_t m_mostThroughLinks;
  std::vector<Place> m_places;
  std::size_t m_throughLinks = 0;
  std::optional<FileUrl> m_cutOff;
};

}  // namespace glossmill
