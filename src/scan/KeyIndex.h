#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "model/TextArena.h"

namespace glossmill {

/// Finds keys by hash and numbers them from 0 in the order in which they were added. Exact, case-sensitive comparison.
class KeyIndex {
 public:
  using Number = std::uint32_t;

  std::size_t size() const { return m_keys.size(); }
  std::optional<Number> find(std::string_view key) const;
  std::string_view key(Number number) const { return m_keys[number].view(); }
  /// The number of `key`, and whether it is new.
  std::pair<Number, bool> add(std::string_view key) { return add(key, hashOf(key)); }
  /// The same for who has asked for the hash before.
  std::pair<Number, bool> add(std::string_view key, std::uint32_t hash);

  static std::uint32_t hashOf(std::string_view key);
  /// Brings the place of a key that will be looked for soon into the cache.
  void prefetch(std::uint32_t hash) const;

 private:
  static constexpr Number kNone = ~Number{0};

  /// The hash lies here, so that other keys on the way are passed without a look at their texts; the text is pointed to
  /// from here, since with a million keys every place that is looked at is another wait for memory.
  struct Slot {
    StoredText text;
    Number number = kNone;
    std::uint32_t hash = 0;
  };

  /// The slot that holds the key, or the empty one where it belongs.
  std::size_t slotOf(std::string_view key, std::uint32_t hash) const;
  void grow();

  TextArena m_texts;
  std::vector<StoredText> m_keys;
  std::vector<Slot> m_slots;  ///< a power of two of them, at most half full
};

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
