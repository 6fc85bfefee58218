#include "host/MemoryDefaults.h"

namespace glossmill {

std::optional<long> MemoryDefaults::integerForKey(std::string_view key) {
  const auto found = m_integers.find(key);
  if (found == m_integers.end()) return std::nullopt;
  return found->second;
}

void MemoryDefaults::setInteger(std::string_view key, long value) {
  m_integers.insert_or_assign(std::string(key), value);
}

std::optional<std::vector<std::string>> MemoryDefaults::stringArrayForKey(std::string_view key) {
  const auto found = m_arrays.find(key);
  if (found == m_arrays.end()) return std::nullopt;
  return found->second;
}

void MemoryDefaults::setStringArray(std::string_view key, const std::vector<std::string>& values) {
  m_arrays.insert_or_assign(std::string(key), values);
}

}  // namespace glossmill
