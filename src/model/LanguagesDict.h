#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "model/LanguageCode.h"
#include "model/TextArena.h"

namespace glossmill {

/// The translations of one string: language code to text. A project holds millions of them, so an entry is one pointer
/// into an arena that the records of a project share. An empty text that was set is an entry like any other.
class LanguagesDict {
 public:
  /// Without an arena one is made for the first text.
  explicit LanguagesDict(std::shared_ptr<TextArena> arena = nullptr) : m_arena(std::move(arena)) {}

  /// Valid until this language's text is set or removed; nothing when there is no entry.
  std::optional<std::string_view> find(LanguageCode code) const {
    if (!contains(code)) return std::nullopt;
    return m_slots[code.number()].view();
  }
  bool contains(LanguageCode code) const { return code.number() < m_slots.size() && m_slots[code.number()]; }
  /// The entry itself, which outlives the dictionary as long as its arena does; no text when there is none.
  StoredText stored(LanguageCode code) const { return contains(code) ? m_slots[code.number()] : StoredText(); }
  void set(LanguageCode code, std::string_view text);
  /// Keeps a text that already lies in the arena given at construction.
  void setStored(LanguageCode code, StoredText text);
  /// False when there was no entry.
  bool remove(LanguageCode code);
  std::size_t count() const { return m_count; }
  /// Makes room for languages up to `highest`, so that setting them one by one does not move the entries.
  void reserve(LanguageCode highest) {
    if (highest.number() >= m_slots.size()) m_slots.resize(highest.number() + 1);
  }

  /// Calls `visit(LanguageCode, std::string_view)` for every entry, in the order in which the codes were first met by
  /// the program.
  template <typename Visit>
  void each(Visit visit) const {
    for (std::size_t number = 0; number < m_slots.size(); ++number) {
      if (m_slots[number]) visit(LanguageCode::fromNumber(static_cast<std::uint32_t>(number)), m_slots[number].view());
    }
  }

  /// Adds 1 to `counts[number]` for the code of every entry; `counts` grows as needed.
  void addTo(std::vector<std::size_t>& counts) const;

 private:
  std::shared_ptr<TextArena> m_arena;
  std::vector<StoredText> m_slots;  ///< by code number
  std::uint32_t m_count = 0;
};

}  // namespace glossmill
