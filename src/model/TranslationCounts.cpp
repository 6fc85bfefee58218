#include "model/TranslationCounts.h"

namespace glossmill {

void TranslationCounts::adjust(LanguageCode code, int difference) {
  if (!m_valid) return;
  if (m_present.size() <= code.number()) m_present.resize(code.number() + 1);
  m_present[code.number()] += static_cast<std::size_t>(difference);
}

std::size_t TranslationCounts::missing(LanguageCode code, const StringArray& records) {
  if (!m_valid) count(records);
  const std::size_t present = code.number() < m_present.size() ? m_present[code.number()] : 0;
  return records.size() - present;
}

void TranslationCounts::count(const StringArray& records) {
  m_present.clear();
  for (const std::shared_ptr<LocalizeString>& record : records) record->languagesDict().addTo(m_present);
  m_valid = true;
}

}  // namespace glossmill
