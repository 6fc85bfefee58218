#pragma once

#include <vector>

#include "model/ProjectRules.h"

namespace glossmill {

/// What a save writes of string catalogs: one file for each that was edited, whatever the language.
std::vector<FileText> planCatalogSave(const SaveInput& input);

}  // namespace glossmill
