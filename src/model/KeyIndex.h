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

}  // namespace glossmill
