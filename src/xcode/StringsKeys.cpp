#include "xcode/StringsKeys.h"

namespace glossmill {

StringsKeys::StringsKeys(const StringsDocument& document) {
  const std::vector<StringsEntry>& entries = document.entries();
  m_last.reserve(entries.size());
  m_previous.resize(entries.size(), kNone);
  for (std::uint32_t number = 0; number < entries.size(); ++number) {
    const StringsEntry& entry = entries[number];
    const bool isPlain = entry.key.isPlain;
    const std::string_view key =
        isPlain ? document.spelled(entry.key) : m_unescaped.emplace_back(document.keyOf(entry));
    const auto [found, isNew] = m_last.try_emplace(key, number);
    if (isNew) continue;
    m_previous[number] = found->second;
    found->second = number;
  }
}

std::uint32_t StringsKeys::lastOf(std::string_view key) const {
  const auto found = m_last.find(key);
  return found == m_last.end() ? kNone : found->second;
}

std::vector<std::uint32_t> StringsKeys::lastEntries() const {
  std::vector<bool> isFollowed(m_previous.size());
  for (const std::uint32_t previous : m_previous) {
    if (previous != kNone) isFollowed[previous] = true;
  }
  std::vector<std::uint32_t> last;
  for (std::uint32_t number = 0; number < m_previous.size(); ++number) {
    if (!isFollowed[number]) last.push_back(number);
  }
  return last;
}

}  // namespace glossmill
