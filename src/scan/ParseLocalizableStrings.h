#pragma once

#include "model/ProjectRules.h"

namespace glossmill {

/// Phase two of a scan by the classic rules: reads the strings file of each language and gives its translations to the
/// records. A cancel stops it at the next line and leaves the translations stored so far in place.
ScanEnd parseLocalizableStringsList(const ScanInput& input, ScanResult& result);

}  // namespace glossmill
