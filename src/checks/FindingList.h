#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "checks/CheckPolicy.h"
#include "checks/PlacedFinding.h"

namespace glossmill {

/// Gathers the findings that a project wants to hear of.
class FindingList {
 public:
  /// `policy` outlives it.
  explicit FindingList(const CheckPolicy& policy) : m_policy(policy) {}

  /// Adds the finding, with its sentence and as bad as the project says; its number, or nothing when it is left out.
  std::optional<std::size_t> add(PlacedFinding finding);
  PlacedFinding& operator[](std::size_t number) { return m_findings[number]; }

  /// All of them by file, line, column, language, check, table, key and sentence, with fingerprints.
  std::vector<PlacedFinding> take();

 private:
  const CheckPolicy& m_policy;
  std::vector<PlacedFinding> m_findings;
};

}  // namespace glossmill
