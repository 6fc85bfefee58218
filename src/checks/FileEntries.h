#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "checks/Finding.h"
#include "model/TextArena.h"

namespace glossmill {

/// An entry of a strings file, and where it begins.
struct FileEntry {
  StoredText key;
  StoredText value;
  std::uint32_t line = 0;    ///< from 1
  std::uint32_t column = 0;  ///< in UTF-16 units from 1
};

/// What a strings file holds, in its order, repeated keys too.
struct FileEntries {
  TextArena texts;
  std::vector<FileEntry> entries;
  std::vector<FileEntry> rejected;  ///< lines that are no entries: the key is what was read of them, the value is none
};

/// A finding about an entry of a file.
struct EntryFinding {
  Finding finding;
  std::size_t entry = 0;  ///< its number in the file
};

}  // namespace glossmill
