#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/KeyIndex.h"
#include "xcode/RareGrams.h"
#include "xcode/RarePairs.h"

namespace glossmill {

/// Finds the words of a set, whole and in their case, in texts that hold few of them. Linear in the length of the text,
/// whatever the words are.
class NameSearch {
 public:
  NameSearch() = default;
  /// Of equal names the first counts. None is empty, and all of their bytes are those of words.
  explicit NameSearch(const std::vector<std::string>& names);

  struct Hit {
    std::size_t begin = 0;  ///< the length of the text when there is none
    std::size_t end = 0;    ///< behind the word
    std::size_t name = 0;   ///< its place in the set
  };

  /// The first name in `text` at or after `from`, which does not stand inside a word.
  Hit next(std::string_view text, std::size_t from) const;

  /// The place of a name in the set.
  std::optional<std::size_t> find(std::string_view name) const;

 private:
  std::size_t nextPlace(std::string_view text, std::size_t at) const;

  KeyIndex m_names;
  std::vector<std::size_t> m_places;  ///< in the set, of the names of the index
  RarePairs m_pairs;
  std::optional<RareGrams> m_grams;  ///< where there are too many pairs
};

}  // namespace glossmill
