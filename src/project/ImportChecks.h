#pragma once

#include <utility>
#include <vector>

#include "checks/Finding.h"
#include "exchange/ImportItem.h"
#include "project/ExportUnits.h"

namespace glossmill {

/// Finds what is wrong with texts that come from outside, before they are taken.
class ImportChecks {
 public:
  ImportChecks(TranslatedFrom sources, RuleSet rules) : m_sources(std::move(sources)), m_rules(rules) {}

  /// Nothing for a key that the project does not have.
  std::vector<Finding> findingsOf(const ImportItem& item) const;

 private:
  TranslatedFrom m_sources;
  RuleSet m_rules;
};

}  // namespace glossmill
