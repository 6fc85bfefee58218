#pragma once

#include <vector>

#include "checks/FileEntries.h"

namespace glossmill {

/// Keys that a file holds more than once: one finding for each, at its last entry, which is the one that counts. It is
/// worse where the texts differ.
std::vector<EntryFinding> duplicateFindings(const FileEntries& file);

}  // namespace glossmill
