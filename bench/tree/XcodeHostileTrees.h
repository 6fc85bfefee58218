#pragma once

#include <cstddef>

#include "tree/TreeWriter.h"

namespace glossmill::bench {

// Projects that are made to hurt the readers of xcode's rules. All of them have a project file and one language.

// One source of `literals` literals: joined ones, and ones without an end in calls and outside. One key.
void writeLiterals(TreeWriter& tree, std::size_t literals);

// A project file with `groups` groups, each in the one before; the last holds the source. One key.
void writeGroups(TreeWriter& tree, std::size_t groups);

// A header of `macros` macros, each of which hands its key to the one behind it, and one call of the first. One key.
void writeMacros(TreeWriter& tree, std::size_t macros);

// `tables` tables of one name in as many directories, each with a key of its own, and a source without a target that
// calls as many keys that no table has. The nearest table takes these.
void writeTables(TreeWriter& tree, std::size_t tables);

// One source of `bytes` bytes on one line that is full of calls. A key for each 50 bytes.
void writeCallLine(TreeWriter& tree, std::size_t bytes);

// A strings file of `entries` entries, every other one of a key that stands there before. A key for each two entries.
void writeRepeatedKeys(TreeWriter& tree, std::size_t entries);

}  // namespace glossmill::bench
