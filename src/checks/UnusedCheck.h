#pragma once

#include <functional>
#include <vector>

#include "checks/CheckedRow.h"
#include "checks/FileEntries.h"

namespace glossmill {

/// An entry of a row that nothing in the project names, under rules that keep such rows.
std::vector<Finding> unusedFindings(const CheckedRow& row);

/// The entries of a file that nothing names, under rules that have no rows for them.
std::vector<EntryFinding> unusedFindings(const FileEntries& file,
                                         const std::function<bool(std::string_view key)>& isNamed);

}  // namespace glossmill
