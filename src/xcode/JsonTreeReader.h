#pragma once

#include <optional>

#include "xcode/PropertyListBuilder.h"
#include "xcode/ValueTree.h"

namespace glossmill {

/// A text of JSON taken apart.
struct ReadTree {
  ValueTree tree;  ///< up to the mistake, where there is one
  std::optional<PlistMistake> mistake;
};

/// `text` is valid UTF-8, shorter than four gigabytes, and outlives the tree. Lists are kept and not looked into, but
/// have to be correct; byte-order marks in front are passed over.
ReadTree readJsonTree(std::string_view text);

}  // namespace glossmill
