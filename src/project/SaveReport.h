#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/FileText.h"
#include "safety/SaveTransaction.h"

namespace glossmill {

/// What a save did, or would have done, to the file of one language.
struct SavedLanguage {
  std::string code;
  FileUrl file;
  FileOutcome outcome;
  std::optional<std::uint64_t> entriesBefore;  ///< nothing: unknown
  std::uint64_t entriesAfter = 0;

  /// Entries that the file held and does not hold any more; nothing when that is not known.
  std::optional<std::uint64_t> notWritten() const {
    if (!entriesBefore) return std::nullopt;
    return *entriesBefore > entriesAfter ? *entriesBefore - entriesAfter : 0;
  }
};

/// What became of a save.
struct SaveReport {
  std::optional<SaveRefusal> refusal;    ///< then nothing was written
  std::vector<SavedLanguage> languages;  ///< in the order of the languages
  std::optional<std::string> id;         ///< by which it can be taken back
};

}  // namespace glossmill
