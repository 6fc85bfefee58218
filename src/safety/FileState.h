#pragma once

#include "platform/Files.h"
#include "safety/SaveManifest.h"

namespace glossmill {

/// What a file of a kept save holds now.
enum class FileState {
  Before,  ///< what it held before the save
  After,   ///< what the save wrote
  Other,   ///< something else, or it cannot be read
};

FileState stateOf(Files& files, const SavedFile& file);

}  // namespace glossmill
