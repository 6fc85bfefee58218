#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text/Result.h"
#include "xcode/StringsLayout.h"
#include "xcode/StringsPlaces.h"
#include "xcode/TextReplacements.h"

namespace glossmill {

/// What is to be written into a file as a new entry.
struct NewStringsEntry {
  std::string_view key;
  std::string_view value;
  std::string comment;  ///< written where the entries beside have comments
};

/// Writes each entry at its place, in the style of those beside it. `development` gives the style of a file that has no
/// entries; it may be null. An error tells of a text that the file has no way to write.
Result<std::vector<TextReplacement>> insertionsOf(const std::vector<NewStringsEntry>& entries,
                                                  const std::vector<StringsPlace>& places, const StringsLayout& layout,
                                                  const StringsDocument* development);

}  // namespace glossmill
