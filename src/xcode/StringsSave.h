#pragma once

#include <vector>

#include "model/ProjectRules.h"

namespace glossmill {

/// What a save by xcode's rules would write: the files of tables in which something was edited, and no others, in the
/// order of the tables' ids and then of the codes. Reads these files, and that of the development language where
/// entries are new. A table that has no directory yet is left out.
std::vector<FileText> planStringsSave(const SaveInput& input);

}  // namespace glossmill
