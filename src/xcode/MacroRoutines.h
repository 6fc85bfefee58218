#pragma once

#include <vector>

#include "xcode/MacroDefinition.h"
#include "xcode/Routine.h"

namespace glossmill {

/// Those of the macros that are routines themselves, since their replacement hands one of their parameters as the key
/// to a routine of `known` or to another such macro. A name that several of them have gives one routine with all of
/// their lookups, at most 16; a macro with the name of a macro in `known` takes its place, and one with the name of
/// any other routine counts for nothing. A table that is neither a literal nor a parameter makes no routine. Linear in
/// the length of the macros, however they refer to one another.
std::vector<Routine> macroRoutines(const std::vector<MacroDefinition>& macros, const RoutineTable& known);

}  // namespace glossmill
