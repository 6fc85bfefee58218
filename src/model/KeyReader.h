#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "model/KeyIndex.h"
#include "model/TextArena.h"

namespace glossmill {

/// Looks up the keys of file after file. Files tend to hold the same keys in the same order, so the key that stood next
/// in an earlier file is compared first, from a copy of the keys in the order of the files, which is read front to
/// back. Where no earlier file helps, the key that stood next in the sources is.
class KeyReader {
 public:
  explicit KeyReader(const KeyIndex& index) : m_index(index), m_placeOf(index.size(), kNoPlace) {}

  /// The next file begins.
  void restart() { m_next = 0; }
  std::optional<KeyIndex::Number> find(std::string_view key);
  /// The key that stood next in an earlier file, if one did.
  std::optional<std::string_view> expectedKey() const {
    return m_next < m_expected.size() ? std::optional(m_expected[m_next].text) : std::nullopt;
  }
  /// The same as finding the expected key, which there must be.
  KeyIndex::Number takeExpected() { return m_expected[m_next++].number; }

 private:
  struct Expected {
    std::string_view text;
    KeyIndex::Number number;
  };
  static constexpr std::uint32_t kNoPlace = ~std::uint32_t{0};

  /// Looks the key up, in the index or at the place that follows the one found last.
  std::optional<KeyIndex::Number> lookUp(std::string_view key) const;
  void expect(KeyIndex::Number number, std::string_view key);

  const KeyIndex& m_index;
  TextArena m_texts;
  std::vector<Expected> m_expected;      ///< keys in the order in which files first held them
  std::vector<std::uint32_t> m_placeOf;  ///< by number, in m_expected
  std::size_t m_next = 0;                ///< in m_expected
  std::size_t m_nextNumber = 0;          ///< of the key behind the one found last
};

}  // namespace glossmill
