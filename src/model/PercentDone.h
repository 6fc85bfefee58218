#pragma once

#include <cstddef>

namespace glossmill {

/// How many of a hundred are done when `missing` of `all` are not, rounded down: only what is quite done is 100 per
/// cent, and so is what has nothing to do.
int percentDone(std::size_t all, std::size_t missing);

}  // namespace glossmill
