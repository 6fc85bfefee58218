#pragma once

#include <cstddef>

#include "tree/TreeWriter.h"

namespace glossmill::bench {

// Projects of one or a few files, each made to hurt a scan that does more than one pass over its input. All of them
// have a project file and one language.

// `calls` calls of 40 bytes whose parenthesis is never closed. No key.
void writeUnbalanced(TreeWriter& tree, std::size_t calls);

// `calls` names of the call and no parenthesis at all. No key.
void writeBare(TreeWriter& tree, std::size_t calls);

// `calls` calls, each the first argument of the one around it, all balanced. One key.
void writeNested(TreeWriter& tree, std::size_t calls);

// `calls` nested calls around a key that no comma follows, so that each looks for it to its own end. No key.
void writeDangling(TreeWriter& tree, std::size_t calls);

// `calls` calls of one key, each with another comment. One key.
void writeComments(TreeWriter& tree, std::size_t calls);

// One source of `bytes` bytes and no line feed. A key for each 500 bytes.
void writeLongLine(TreeWriter& tree, std::size_t bytes);

// `keys` distinct keys, one call each, and one language with all of them.
void writeManyKeys(TreeWriter& tree, std::size_t keys);

// A project file of about `bytes` bytes that nearly names its sources at every place, and a pair of sources for each
// 3,400 bytes of it. One of each pair is really named; each holds a key.
void writeBadProject(TreeWriter& tree, std::size_t bytes);

// A strings file of `entries` entries, each followed by a line comment that takes the line feed with it. One key.
void writeBadComments(TreeWriter& tree, std::size_t entries);

// A strings file of `comments` block comments out of stars, half of which swallow their own end. One key.
void writeStars(TreeWriter& tree, std::size_t comments);

// A strings file of `lines` lines, each without its "=", the end of its value or the end of its key. One key.
void writeQuotes(TreeWriter& tree, std::size_t lines);

}  // namespace glossmill::bench
