#pragma once

#include <string>

#include "model/ScanNews.h"

namespace glossmill {

/// What a scan of the project in this directory has to say, in lines: for each kind how often, and examples. Empty
/// where it has nothing to say. Without the package that is missing, which is told otherwise.
std::string scanNewsText(const ScanNews& news, const FileUrl& directory);

}  // namespace glossmill
