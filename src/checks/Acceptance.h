#pragma once

#include <compare>
#include <optional>
#include <string>

#include "checks/Finding.h"
#include "checks/PlacedFinding.h"

namespace glossmill {

/// Says that what a check finds in a translation is all right as it is. Holds for these texts only: when one of them
/// changes, the finding counts again.
struct Acceptance {
  std::string table;  ///< id; empty where a project has one table only
  std::string key;
  std::string language;  ///< code
  Check check = Check::Missing;
  std::optional<std::string> source;
  std::optional<std::string> translation;

  auto operator<=>(const Acceptance&) const = default;
};

/// What would accept the finding; nothing for one that is about no string.
std::optional<Acceptance> acceptanceOf(const PlacedFinding& finding);

}  // namespace glossmill
