#include "exchange/ImportPlan.h"

#include "exchange/ImportKey.h"

namespace glossmill {

std::optional<Edit> ImportPlan::editFor(const std::shared_ptr<LocalizeString>& record) const {
  const auto found = record->tableRow() ? m_table.find(importKey(*record)) : m_table.find(record->name());
  if (found == m_table.end()) return std::nullopt;
  return editOf(record, m_language, found->second);
}

}  // namespace glossmill
