#include "model/CatalogRow.h"

#include <array>

namespace glossmill {

namespace {

constexpr std::array<std::string_view, 4> kStateNames = {"new", "translated", "needs_review", "stale"};

}  // namespace

std::string_view nameOfState(TextState state) {
  return kStateNames[static_cast<std::size_t>(state)];
}

std::optional<TextState> stateOfName(std::string_view name) {
  const auto* const found = std::find(kStateNames.begin(), kStateNames.end(), name);
  if (found == kStateNames.end()) return std::nullopt;
  return static_cast<TextState>(found - kStateNames.begin());
}

std::optional<TextState> CatalogRow::stateIn(LanguageCode language) const {
  const auto found =
      std::find_if(states.begin(), states.end(), [language](const auto& state) { return state.first == language; });
  return found == states.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace glossmill
