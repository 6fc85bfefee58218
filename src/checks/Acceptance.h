#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <tuple>

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

  bool operator==(const Acceptance&) const = default;
  bool operator<(const Acceptance& other) const { return parts() < other.parts(); }

 private:
  using Text = const std::optional<std::string>&;
  std::tuple<std::string_view, std::string_view, std::string_view, Check, Text, Text> parts() const {
    return {table, key, language, check, source, translation};
  }
};

/// What would accept the finding; nothing for one that is about no string.
std::optional<Acceptance> acceptanceOf(const PlacedFinding& finding);

}  // namespace glossmill
