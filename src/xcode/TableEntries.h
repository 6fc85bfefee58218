#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "model/KeyIndex.h"
#include "model/Problem.h"
#include "model/ProjectRules.h"
#include "model/TextArena.h"
#include "xcode/TableList.h"

namespace glossmill {

/// What the files of one table hold.
struct TableEntries {
  KeyIndex keys;  ///< in the order in which the files hold them, the development one first
  std::vector<std::vector<StoredText>> columns;  ///< by file and key; as long as the last key of the file needs
  std::vector<StoredText> comments;              ///< by key: what stands in front of it in the first file that says so

  /// No text where the file lacks the key.
  StoredText find(std::size_t file, KeyIndex::Number key) const {
    return key < columns[file].size() ? columns[file][key] : StoredText();
  }
};

/// Reads the files of a table. Values go to `arena`; a file with a mistake is read up to it, and marked in the table.
TableEntries readTable(TableList::Table& table, TextArena& arena, const ScanInput& input,
                       const std::function<void(Problem)>& report);

/// The last comment of a gap between two entries that belongs to what follows: not one that begins on the line of the
/// entry before. Without its marks and the white space inside; "" for none.
std::string_view commentInGap(std::string_view gap, bool followsEntry);

}  // namespace glossmill
