#pragma once

#include <cstddef>

#include "tree/TreeWriter.h"

namespace glossmill::bench {

// What a project holds; sizes in bytes on disk, met as nearly as whole lines allow, counts met exactly.
struct ProjectShape {
  std::size_t sources = 0;
  std::size_t sourceBytes = 0;
  std::size_t calls = 0;
  std::size_t keys = 0;       // at most `calls`; each is called at least once
  std::size_t languages = 0;  // every fourth one in UTF-16, each with as many entries as there are keys
  std::size_t stringsBytes = 0;
  std::size_t projectFileBytes = 0;
  std::size_t entries = 0;     // directories and files in all; pictures make up the number
  std::size_t strayEvery = 0;  // one of so many strings entries has a key that no source calls; 0: none has
};

ProjectShape largeShape();
ProjectShape mediumShape();
ProjectShape tinyShape();
// The same project, but that one of ten entries of each strings file has a key that no source calls.
ProjectShape withStrays(ProjectShape shape);
// `keys` distinct keys, one call each, and one language with all of them.
ProjectShape manyKeysShape(std::size_t keys);

void writeProject(TreeWriter& tree, const ProjectShape& shape);

}  // namespace glossmill::bench
