#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "xcode/StringsDocument.h"

namespace glossmill {

/// The keys of a strings file and the numbers of their entries.
class StringsKeys {
 public:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  /// `document` outlives this.
  explicit StringsKeys(const StringsDocument& document);

  /// The entry that counts; kNone without one.
  std::uint32_t lastOf(std::string_view key) const;
  /// The entry of the same key in front of this one; kNone without one.
  std::uint32_t previous(std::uint32_t entry) const { return m_previous[entry]; }
  /// The last entry of each key, ascending.
  std::vector<std::uint32_t> lastEntries() const;

 private:
  std::unordered_map<std::string_view, std::uint32_t> m_last;
  std::deque<std::string> m_unescaped;  ///< keys that are spelled in another way than they read
  std::vector<std::uint32_t> m_previous;
};

}  // namespace glossmill
