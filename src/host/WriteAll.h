#pragma once

#include <string_view>

#include "text/Result.h"

namespace glossmill {

/// Writes all of the bytes to an open file; a system that takes none of them is an error.
Outcome writeAll(int descriptor, std::string_view bytes);

}  // namespace glossmill
