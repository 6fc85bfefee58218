#include "scan/KeyIndex.h"

#include <functional>

namespace glossmill {

std::uint32_t KeyIndex::hashOf(std::string_view key) {
  return static_cast<std::uint32_t>(std::hash<std::string_view>()(key));
}

std::size_t KeyIndex::slotOf(std::string_view key, std::uint32_t hash) const {
  const std::size_t mask = m_slots.size() - 1;
  std::size_t slot = hash & mask;
  while (m_slots[slot] != kNone) {
    const Key& other = m_keys[m_slots[slot]];
    if (other.hash == hash && other.text == key) break;
    slot = (slot + 1) & mask;
  }
  return slot;
}

std::optional<KeyIndex::Number> KeyIndex::find(std::string_view key) const {
  if (m_slots.empty()) return std::nullopt;
  const Number number = m_slots[slotOf(key, hashOf(key))];
  return number == kNone ? std::nullopt : std::optional(number);
}

std::pair<KeyIndex::Number, bool> KeyIndex::add(std::string_view key) {
  if (m_keys.size() * 2 >= m_slots.size()) grow();
  const std::uint32_t hash = hashOf(key);
  Number& slot = m_slots[slotOf(key, hash)];
  if (slot != kNone) return {slot, false};
  slot = static_cast<Number>(m_keys.size());
  m_keys.push_back({m_texts.add(key).view(), hash});
  return {slot, true};
}

void KeyIndex::grow() {
  m_slots.assign(m_slots.empty() ? 64 : m_slots.size() * 2, kNone);
  const std::size_t mask = m_slots.size() - 1;
  for (Number number = 0; number < m_keys.size(); ++number) {
    std::size_t slot = m_keys[number].hash & mask;
    while (m_slots[slot] != kNone) slot = (slot + 1) & mask;
    m_slots[slot] = number;
  }
}

std::optional<KeyIndex::Number> KeyReader::find(std::string_view key) {
  if (m_next < m_expected.size() && m_expected[m_next].text == key) return m_expected[m_next++].number;
  const std::optional<KeyIndex::Number> number = m_index.find(key);
  if (!number) return std::nullopt;
  if (m_placeOf[*number] == kNoPlace) expect(*number, key);
  m_next = m_placeOf[*number] + 1;
  return number;
}

void KeyReader::expect(KeyIndex::Number number, std::string_view key) {
  m_placeOf[number] = static_cast<std::uint32_t>(m_expected.size());
  m_expected.push_back({m_texts.add(key).view(), number});
}

}  // namespace glossmill
