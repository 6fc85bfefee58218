#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"
#include "platform/SaveDisk.h"
#include "safety/SaveManifest.h"

namespace glossmill {

/// A save that is kept.
struct SavedVersion {
  std::string id;  ///< its time, sorts by it
  bool isFinished = false;
  SaveManifest manifest;
};

/// What is kept at most, but always the newest save.
struct VersionLimits {
  std::size_t saves = 50;
  std::int64_t seconds = std::int64_t{30} * 24 * 60 * 60;  ///< younger ones stay, however many they are
  std::uint64_t bytes = 500'000'000;
};

/// The saves of one project in the state directory: a directory a save with its manifest, and the former contents of
/// files, equal ones once. Main thread. Errors name what could not be done.
class SavedVersions {
 public:
  /// `project` is the opened directory; both disks outlive this.
  SavedVersions(Files& files, SaveDisk& disk, const FileUrl& project);

  /// Copies what the file holds now, which must have this hash, unless it is kept already.
  Outcome keepContent(const FileUrl& file, const ContentHash& hash);
  /// The kept content.
  Result<std::unique_ptr<ByteReader>> content(const ContentHash& hash);

  /// Notes a save that is about to begin; gives its id.
  Result<std::string> begin(const SaveManifest& manifest);
  /// Notes more of a save that has begun.
  Outcome amend(const std::string& id, const SaveManifest& manifest);
  Outcome finish(const std::string& id);
  /// Forgets a save; contents that nobody needs any more go with the next forgetOld().
  Outcome drop(const std::string& id);

  /// Newest first; what cannot be read is left out.
  std::vector<SavedVersion> list();
  /// Where files are kept.
  std::vector<FileUrl> directories();
  /// Removes saves whose process was killed before they were noted.
  void removeUnnoted();
  /// Removes what is beyond the limits; `now` in seconds since 1970.
  void forgetOld(std::int64_t now, const VersionLimits& limits);

 private:
  std::vector<FileUrl> savesDirectories();
  Result<FileUrl> directoryOf(std::string_view id);
  Result<FileUrl> fileOf(const ContentHash& hash);
  std::optional<SavedVersion> versionIn(const std::string& id);
  std::uint64_t newBytes(const SaveManifest& manifest, std::vector<std::string>& known);
  void removeContentsBut(const std::vector<std::string>& needed);

  Files& m_files;
  SaveDisk& m_disk;
  Result<FileUrl> m_directory;
};

/// "2026-11-21T16-05-00Z", for a time in seconds since 1970.
std::string timeText(std::int64_t time);

}  // namespace glossmill
