#include "safety/FileState.h"

#include <optional>

#include "safety/FileContent.h"

namespace glossmill {

FileState stateOf(Files& files, const SavedFile& file) {
  std::optional<ContentHash> now;
  if (files.kindOf(file.file) != EntryKind::Missing) {
    const Result<ContentHash> hash = hashOfContent(contentOf(files, file.file));
    if (!hash) return FileState::Other;
    now = hash.value();
  }
  if (now == file.after) return FileState::After;
  return now == file.before ? FileState::Before : FileState::Other;
}

}  // namespace glossmill
