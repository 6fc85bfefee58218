#include "safety/UnfinishedSave.h"

#include <algorithm>

#include "safety/FileContent.h"
#include "safety/FileState.h"

namespace glossmill {

namespace {

/// Whether the new text still lies beside the file.
bool hasTemporary(Files& files, const SavedFile& file) {
  return !file.temporary.empty() && files.kindOf(file.temporary) == EntryKind::File;
}

Outcome removeTemporaries(SaveDisk& disk, const SaveManifest& manifest) {
  for (const SavedFile& file : manifest.files) {
    if (file.temporary.empty()) continue;
    const Outcome removed = disk.remove(file.temporary);
    if (!removed) return removed;
  }
  return Done{};
}

/// Those that were made for the save and are empty still.
void removeDirectories(Files& files, SaveDisk& disk, const SaveManifest& manifest) {
  for (auto directory = manifest.directories.rbegin(); directory != manifest.directories.rend(); ++directory) {
    for (const FileUrl& temporary : disk.abandonedWrites(*directory)) static_cast<void>(disk.remove(temporary));
    const auto entries = files.list(*directory);
    if (entries && entries.value().empty()) static_cast<void>(disk.remove(*directory));
  }
}

Outcome finishFile(Files& files, SaveDisk& disk, const SavedFile& file) {
  const FileState state = stateOf(files, file);
  if (state == FileState::After) return Done{};
  if (state == FileState::Other) return Error{"It was changed since: " + file.file.path()};
  if (!file.after) return disk.remove(file.file);
  const Result<ContentHash> ready = hashOfContent(contentOf(files, file.temporary));
  if (!ready) return ready.error();
  if (ready.value() != *file.after) return Error{"The new text is not whole: " + file.temporary.path()};
  return disk.rename(file.temporary, file.file);
}

}  // namespace

/// The process that is at work on a save at this moment is kept away by the lock on the project.
std::optional<SavedVersion> findUnfinishedSave(Files& files, SaveDisk& disk, SavedVersions& versions) {
  for (const SavedVersion& version : versions.list()) {
    if (version.isFinished) continue;
    const std::vector<SavedFile>& saved = version.manifest.files;
    const auto isStill = [&files](FileState wanted) {
      return [&files, wanted](const SavedFile& file) { return stateOf(files, file) == wanted; };
    };
    const bool isOpen =
        std::any_of(saved.begin(), saved.end(), [&files](const SavedFile& file) { return hasTemporary(files, file); });
    if (std::all_of(saved.begin(), saved.end(), isStill(FileState::Before))) {
      if (!removeTemporaries(disk, version.manifest)) return version;
      removeDirectories(files, disk, version.manifest);
      if (!versions.drop(version.id)) return version;
    } else if (!isOpen || std::all_of(saved.begin(), saved.end(), isStill(FileState::After))) {
      if (!versions.finish(version.id)) return version;
    } else {
      return version;
    }
  }
  return std::nullopt;
}

Outcome finishSave(Files& files, SaveDisk& disk, SavedVersions& versions, const SavedVersion& version) {
  for (const SavedFile& file : version.manifest.files) {
    const Outcome finished = finishFile(files, disk, file);
    if (!finished) return finished;
  }
  return closeSave(disk, versions, version);
}

Outcome closeSave(SaveDisk& disk, SavedVersions& versions, const SavedVersion& version) {
  const Outcome removed = removeTemporaries(disk, version.manifest);
  return removed ? versions.finish(version.id) : removed;
}

}  // namespace glossmill
