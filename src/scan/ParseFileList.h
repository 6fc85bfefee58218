#pragma once

#include "model/ProjectRules.h"

namespace glossmill {

/// Phase one of a scan by the classic rules: the first package, its project file, and a walk that makes the languages
/// and reads the sources. Without a package there is no walk.
void parseFileList(const FileUrl& directory, const ScanInput& input, ScanMemory& memory, ScanResult& result);

}  // namespace glossmill
