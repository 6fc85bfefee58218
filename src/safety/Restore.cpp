#include "safety/Restore.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "safety/FileContent.h"
#include "safety/FileState.h"

namespace glossmill {

namespace {

BytePieces keptContent(SavedVersions& versions, const ContentHash& hash) {
  Result<std::unique_ptr<ByteReader>> reader = versions.content(hash);
  if (reader) return verified(contentOf(std::shared_ptr<ByteReader>(std::move(reader.value()))), hash);
  return [error = reader.error()]() -> Result<std::string_view> { return error; };
}

FileText formerText(SavedVersions& versions, const SavedFile& file) {
  FileText text;
  text.file = file.file;
  text.language = file.language;
  text.entriesBefore = file.entriesAfter;
  text.entriesAfter = file.entriesBefore.value_or(0);
  if (!file.before) return text;
  text.modeIfNew = file.mode;
  text.bytes = [&versions, hash = *file.before] { return keptContent(versions, hash); };
  return text;
}

bool isWanted(const std::vector<FileUrl>& wanted, const FileUrl& file) {
  return wanted.empty() || std::find(wanted.begin(), wanted.end(), file) != wanted.end();
}

}  // namespace

RestorePlan planRestore(Files& files, SavedVersions& versions, const SavedVersion& version,
                        const std::vector<FileUrl>& wanted, bool allowsChanged) {
  RestorePlan plan;
  for (const SavedFile& file : version.manifest.files) {
    if (!isWanted(wanted, file.file)) continue;
    const FileState state = stateOf(files, file);
    if (state == FileState::Before) continue;
    if (state == FileState::Other) plan.changed.push_back(file.file);
    if (state == FileState::Other && !allowsChanged) continue;
    if (file.before && !versions.content(*file.before)) {
      plan.lost.push_back(file.file);
      continue;
    }
    plan.texts.push_back(formerText(versions, file));
  }
  return plan;
}

}  // namespace glossmill
