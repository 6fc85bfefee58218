#pragma once

#include <string>

#include "text/Result.h"

namespace glossmill {

/// Copies the extended attributes, access lists among them, of a file to an open one. Attributes that only the system
/// may set are left out where it refuses them; where it has none at all, nothing happens.
Outcome copyExtendedAttributes(const std::string& from, int to);

}  // namespace glossmill
