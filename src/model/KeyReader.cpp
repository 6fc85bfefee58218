#include "model/KeyReader.h"

namespace glossmill {

std::optional<KeyIndex::Number> KeyReader::find(std::string_view key) {
  if (expectedKey() == key) return takeExpected();
  const std::optional<KeyIndex::Number> number = lookUp(key);
  if (!number) return std::nullopt;
  if (m_placeOf[*number] == kNoPlace) expect(*number, key);
  m_next = m_placeOf[*number] + 1;
  m_nextNumber = *number + std::size_t{1};
  return number;
}

std::optional<KeyIndex::Number> KeyReader::lookUp(std::string_view key) const {
  const auto next = static_cast<KeyIndex::Number>(m_nextNumber);
  return m_nextNumber < m_index.size() && m_index.key(next) == key ? next : m_index.find(key);
}

void KeyReader::expect(KeyIndex::Number number, std::string_view key) {
  m_placeOf[number] = static_cast<std::uint32_t>(m_expected.size());
  m_expected.push_back({m_texts.add(key).view(), number});
}

}  // namespace glossmill
