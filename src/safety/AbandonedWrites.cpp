#include "safety/AbandonedWrites.h"

namespace glossmill {

namespace {

void removeFrom(SaveDisk& disk, const FileUrl& directory) {
  for (const FileUrl& temporary : disk.abandonedWrites(directory)) {
    if (!disk.remove(temporary)) return;
  }
}

}  // namespace

/// A temporary file lies where the links of its file lead.
void removeAbandonedWrites(SaveDisk& disk, SavedVersions& versions, const std::vector<FileText>& texts) {
  for (const FileText& text : texts) {
    const Result<FileUrl> target = disk.resolve(text.file);
    removeFrom(disk, (target ? target.value() : text.file).parent());
  }
  for (const FileUrl& directory : versions.directories()) removeFrom(disk, directory);
  versions.removeUnnoted();
}

}  // namespace glossmill
