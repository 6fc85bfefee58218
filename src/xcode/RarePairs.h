#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// Passes over text that cannot hold any of a few names, by two seldom bytes of each: sixteen places at a time.
class RarePairs {
 public:
  static constexpr std::size_t kMost = 4;  ///< different pairs; with more of them grams are quicker

  RarePairs() = default;
  /// None of the names is empty.
  explicit RarePairs(const std::vector<std::string>& names);

  bool areFew() const { return m_pairs.size() <= kMost; }

  /// A place at or after `at` that may belong to a name, in front of the end of the first one that begins there; the
  /// length of `text` when there is none. Only for few pairs.
  std::size_t next(std::string_view text, std::size_t at) const;

 private:
  struct Pair {
    char first = 0;
    char second = 0;
    std::size_t distance = 0;  ///< from the first to the second, below the size of a ByteBlock
  };

  bool knows(std::string_view name) const;
  static Pair pairOf(std::string_view name);
  template <std::size_t kCount>
  std::size_t nextOf(std::string_view text, std::size_t at) const;
  bool standsAt(std::string_view text, std::size_t at) const;

  std::vector<Pair> m_pairs;
  std::size_t m_farthest = 0;  ///< the largest distance
};

}  // namespace glossmill
