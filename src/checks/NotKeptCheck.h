#pragma once

#include <string_view>
#include <vector>

#include "checks/Finding.h"
#include "model/LocalizeString.h"

namespace glossmill {

/// For the rules that write texts as they stand: a key, its comments or a translation that would not be read back after
/// saving, or would swallow the entry behind it. Found by writing that one entry and reading it.
std::vector<Finding> notKeptFindings(const LocalizeString& record, std::string_view translation);

}  // namespace glossmill
