#pragma once

#include "model/ProjectRules.h"

namespace glossmill {

/// Phase one of a scan by xcode's rules: packages, the files that they name, and the calls in the sources. What it
/// finds waits in `result.state`. A cancel ends it early.
void readXcodeSources(const FileUrl& directory, const ScanInput& input, ScanMemory& memory, ScanResult& result);

/// Phase two: tables, their entries, and the rows that calls and entries make together. A cancel ends it early.
void readXcodeStrings(const ScanInput& input, ScanResult& result);

}  // namespace glossmill
