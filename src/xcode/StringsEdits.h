#pragma once

#include <optional>
#include <string>
#include <vector>

#include "text/Result.h"
#include "xcode/StringsDocument.h"

namespace glossmill {

/// What a key is to stand for in a file.
struct StringsEdit {
  std::string key;
  std::optional<std::string> value;  ///< nothing: the key goes, with every entry of it
  std::string comment;               ///< for a new entry where those beside it have comments
};

/// The bytes of a file after the edits, of which the last counts where a key has several. Only the bytes of edited
/// values change; entries are added and taken out in lines of their own where the file has it so. `development` is the
/// development language's file, whose order new entries follow; null for that file itself.
///
/// An error, for a file with a mistake or a text that the file has no way to write, leaves everything as it is.
Result<std::string> editedStrings(const StringsDocument& document, const std::vector<StringsEdit>& edits,
                                  const StringsDocument* development);

}  // namespace glossmill
