#pragma once

#include <optional>

#include "platform/Files.h"
#include "platform/SaveDisk.h"
#include "safety/SavedVersions.h"

namespace glossmill {

/// A save of which some files are new and some are not, because its process was killed between two renames. Looking for
/// it tidies what needs no question: a save that is all done is marked so, one of which nothing was done is forgotten
/// with its temporary files. Main thread.
std::optional<SavedVersion> findUnfinishedSave(Files& files, SaveDisk& disk, SavedVersions& versions);

/// Puts the rest of its files in place. An error names the first that is not possible; what was done until then stays,
/// and the save stays unfinished.
Outcome finishSave(Files& files, SaveDisk& disk, SavedVersions& versions, const SavedVersion& version);

/// Removes its temporary files and counts it as ended; for after its files were taken back.
Outcome closeSave(SaveDisk& disk, SavedVersions& versions, const SavedVersion& version);

}  // namespace glossmill
