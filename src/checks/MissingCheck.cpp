#include "checks/MissingCheck.h"

namespace glossmill {

std::vector<Finding> missingFindings(const CheckedRow& row) {
  if (row.translation && !row.translation->empty()) return {};
  if (row.record.tableRow() && !row.record.tableRow()->isWantedIn(LanguageCode(row.language))) return {};
  const FindingKind kind = row.translation ? FindingKind::EmptyTranslation : FindingKind::NoTranslation;
  return {{Check::Missing, Severity::Error, kind, {}, {}, {}, {}}};
}

}  // namespace glossmill
