#pragma once

#include <vector>

#include "checks/Finding.h"

namespace glossmill {

/// Format specifiers that differ from the source text's. They are compared by the arguments that they take and not one
/// by one: a translation may take them in another order by their positions, and one of them twice. Where the source
/// text is prose, a percent sign is a percent sign.
std::vector<Finding> formatFindings(const CheckedText& text);

}  // namespace glossmill
