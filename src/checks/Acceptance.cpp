#include "checks/Acceptance.h"

namespace glossmill {

std::optional<Acceptance> acceptanceOf(const PlacedFinding& finding) {
  if (finding.key.empty()) return std::nullopt;
  return Acceptance{finding.table, finding.key, finding.language, finding.check, finding.source, finding.translation};
}

}  // namespace glossmill
