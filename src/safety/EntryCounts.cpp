#include "safety/EntryCounts.h"

namespace glossmill {

EntryCounts entryCounts(const SaveManifest& manifest) {
  EntryCounts counts;
  for (const SavedFile& file : manifest.files) {
    counts.after += file.entriesAfter;
    if (!file.before) continue;
    if (!file.entriesBefore) counts.before.reset();
    if (counts.before) *counts.before += *file.entriesBefore;
  }
  return counts;
}

}  // namespace glossmill
