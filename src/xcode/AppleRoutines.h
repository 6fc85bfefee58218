#pragma once

#include <vector>

#include "xcode/MacroDefinition.h"
#include "xcode/Routine.h"

namespace glossmill {

/// Apple's routines, then those of the project: its own and, in the C family, the macros of its headers. Apple's keep
/// their meaning when others have their names, and a project's own come before its macros.
RoutineTable routinesInC(const std::vector<Routine>& own, const std::vector<MacroDefinition>& headerMacros);
RoutineTable routinesInSwift(const std::vector<Routine>& own);

}  // namespace glossmill
