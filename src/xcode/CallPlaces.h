#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "xcode/Routine.h"

namespace glossmill {

/// Where the name of a routine stands, be it in a comment or literal.
struct CallPlace {
  std::size_t begin = 0;
  const Routine* routine = nullptr;
};

/// The places of all names of the table in a source of the C family, in order, also of those that line continuations
/// run through.
std::vector<CallPlace> callPlacesInC(std::string_view text, const RoutineTable& routines);

/// The same in Swift; where the table has a routine of the form String(name: …), it is "String" that is looked for.
std::vector<CallPlace> callPlacesInSwift(std::string_view text, const RoutineTable& routines);

/// Both lists in one, in order.
void addCallPlaces(std::vector<CallPlace>& places, const std::vector<CallPlace>& more);

}  // namespace glossmill
