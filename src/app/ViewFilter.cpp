#include "app/ViewFilter.h"

#include <utility>

namespace glossmill {

void ViewFilter::set(ViewPart part, Condition condition) {
  if (!condition && !isSet(part)) return;
  m_kept = nullptr;
  if (condition) {
    m_conditions[part] = std::move(condition);
  } else {
    m_conditions.erase(part);
  }
  arrange();
}

void ViewFilter::refresh() {
  if (isEmpty()) return;
  m_kept = m_strings.selectedObject();
  arrange();
}

/// Every condition gets to see every string, in the order of the list: a search is quick as long as none is left out.
bool ViewFilter::shows(const LocalizeString& record) const {
  bool meetsAll = true;
  for (const auto& [part, condition] : m_conditions) meetsAll = condition(record) && meetsAll;
  return meetsAll || &record == m_kept.get();
}

void ViewFilter::arrange() {
  if (isEmpty()) {
    m_strings.setFilter(nullptr);
    return;
  }
  m_strings.setFilter([this](const LocalizeString& record) { return shows(record); });
  if (!m_strings.selectedRow()) m_strings.setSelectionIndex(0);
}

}  // namespace glossmill
