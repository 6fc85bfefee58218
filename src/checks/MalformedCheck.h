#pragma once

#include <optional>

#include "checks/Finding.h"
#include "model/Problem.h"

namespace glossmill {

/// A file, or a part of one, that could not be read; nothing for a problem of another kind.
std::optional<Finding> malformedFinding(const Problem& problem);

}  // namespace glossmill
