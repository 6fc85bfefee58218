#pragma once

#include <vector>

#include "model/FileText.h"
#include "safety/SavedVersions.h"

namespace glossmill {

/// Removes what killed processes left beside these files and where saves are kept. Whether one of them left a save that
/// can be finished is to be asked before.
void removeAbandonedWrites(SaveDisk& disk, SavedVersions& versions, const std::vector<FileText>& texts);

}  // namespace glossmill
