#pragma once

#include "model/ProjectOptions.h"
#include "model/ProjectRules.h"

namespace glossmill {

/// The rules of a set; they live as long as the program.
const ProjectRules& projectRules(RuleSet set);

}  // namespace glossmill
