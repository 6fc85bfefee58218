#pragma once

#include <optional>
#include <vector>

#include "safety/SaveTransaction.h"
#include "safety/SavedVersions.h"

namespace glossmill {

/// What bringing back a saved version would do.
struct RestorePlan {
  std::vector<FileText> texts;   ///< for a SaveTransaction
  std::vector<FileUrl> changed;  ///< files that were edited since and are in `texts` only when that is allowed
  std::vector<FileUrl> lost;     ///< files whose former content is not kept any more
};

/// Brings back what the files held before the save, and takes away those that it created; all of its files, or those in
/// `wanted`. Files that are as they were before are left out. Both `files` and `versions` outlive the texts.
RestorePlan planRestore(Files& files, SavedVersions& versions, const SavedVersion& version,
                        const std::vector<FileUrl>& wanted, bool allowsChanged);

}  // namespace glossmill
