#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// Passes over text that cannot hold any of many names. A gram is what is looked at in one place, up to four bytes; of
/// each name as many neighbouring ones are known as a stride is long, so that one of them stands where the search
/// looks. Only every sixth place is looked at when all names have nine letters or more.
class RareGrams {
 public:
  /// There are names, and none is empty.
  explicit RareGrams(const std::vector<std::string>& names);

  /// A place at or after `at` that may belong to a name, in front of the end of the first one that begins there; the
  /// length of `text` when there is none.
  std::size_t next(std::string_view text, std::size_t at) const;

 private:
  void add(std::string_view name);
  std::size_t bestWindow(std::string_view name) const;
  std::size_t slotOf(std::uint32_t gram) const;
  std::uint32_t gramAt(std::string_view text, std::size_t at) const;

  std::size_t m_gramLength = 4;
  std::size_t m_stride = 1;
  std::uint32_t m_gramMask = 0;
  std::vector<std::uint8_t> m_known;  ///< by a hash of the gram; a power of two of them
};

}  // namespace glossmill
