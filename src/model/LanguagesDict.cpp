#include "model/LanguagesDict.h"

namespace glossmill {

void LanguagesDict::set(LanguageCode code, std::string_view text) {
  if (!m_arena) m_arena = std::make_shared<TextArena>();
  setStored(code, m_arena->add(text));
}

void LanguagesDict::setStored(LanguageCode code, StoredText text) {
  reserve(code);
  StoredText& slot = m_slots[code.number()];
  if (!slot) ++m_count;
  slot = text;
}

bool LanguagesDict::remove(LanguageCode code) {
  if (!contains(code)) return false;
  m_slots[code.number()] = StoredText();
  --m_count;
  return true;
}

void LanguagesDict::addTo(std::vector<std::size_t>& counts) const {
  if (counts.size() < m_slots.size()) counts.resize(m_slots.size());
  for (std::size_t number = 0; number < m_slots.size(); ++number) counts[number] += m_slots[number] ? 1 : 0;
}

}  // namespace glossmill
