#include "xcode/KeyHolders.h"

#include <algorithm>

namespace glossmill {

const KeyHolders::TableNumbers& KeyHolders::of(const CallList::Call& call, const TableNumbers& named) {
  const auto [known, isNew] = m_holders.try_emplace(call.table);
  ByKey& holders = known->second;
  if (!isNew) return holders[call.key];
  for (const std::uint32_t table : named) {
    const KeyIndex& keys = m_rows[table].keys();
    for (KeyIndex::Number number = 0; number < keys.size(); ++number) {
      const std::optional<KeyIndex::Number> key = m_calls.keys().find(keys.key(number));
      if (key) holders[*key].push_back(table);
    }
  }
  return holders[call.key];
}

void KeyHolders::add(const CallList::Call& call, std::uint32_t table) {
  const auto known = m_holders.find(call.table);
  if (known == m_holders.end()) return;
  TableNumbers& tables = known->second[call.key];
  const auto place = std::lower_bound(tables.begin(), tables.end(), table);
  if (place == tables.end() || *place != table) tables.insert(place, table);
}

}  // namespace glossmill
