#pragma once

#include <optional>

#include "checks/Finding.h"
#include "model/Problem.h"

namespace glossmill {

/// A call that was not taken; nothing for a problem of another kind.
std::optional<Finding> notLiteralFinding(const Problem& problem);

}  // namespace glossmill
