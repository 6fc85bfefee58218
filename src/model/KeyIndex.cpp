#include "model/KeyIndex.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace glossmill {

std::uint32_t KeyIndex::hashOf(std::string_view key) {
  return static_cast<std::uint32_t>(std::hash<std::string_view>()(key));
}

std::size_t KeyIndex::slotOf(std::string_view key, std::uint32_t hash) const {
  const std::size_t mask = m_slots.size() - 1;
  std::size_t at = hash & mask;
  while (m_slots[at].number != kNone) {
    if (m_slots[at].hash == hash && m_slots[at].text.view() == key) break;
    at = (at + 1) & mask;
  }
  return at;
}

std::optional<KeyIndex::Number> KeyIndex::find(std::string_view key) const {
  if (m_slots.empty()) return std::nullopt;
  const Number number = m_slots[slotOf(key, hashOf(key))].number;
  return number == kNone ? std::nullopt : std::optional(number);
}

std::pair<KeyIndex::Number, bool> KeyIndex::add(std::string_view key, std::uint32_t hash) {
  if (m_keys.size() * 2 >= m_slots.size()) grow();
  Slot& slot = m_slots[slotOf(key, hash)];
  if (slot.number != kNone) return {slot.number, false};
  slot = {m_texts.add(key), static_cast<Number>(m_keys.size()), hash};
  m_keys.push_back(slot.text);
  return {slot.number, true};
}

void KeyIndex::prefetch(std::uint32_t hash) const {
#if defined(__GNUC__)
  if (!m_slots.empty()) __builtin_prefetch(&m_slots[hash & (m_slots.size() - 1)]);
#else
  static_cast<void>(hash);
#endif
}

void KeyIndex::grow() {
  const std::vector<Slot> old =
      std::exchange(m_slots, std::vector<Slot>(std::max<std::size_t>(64, 2 * m_slots.size())));
  const std::size_t mask = m_slots.size() - 1;
  for (const Slot& slot : old) {
    if (slot.number == kNone) continue;
    std::size_t at = slot.hash & mask;
    while (m_slots[at].number != kNone) at = (at + 1) & mask;
    m_slots[at] = slot;
  }
}

}  // namespace glossmill
