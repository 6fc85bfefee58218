#pragma once

#include <cstddef>
#include <string_view>

namespace glossmill {

/// Finds the calls of a text one after the other. It looks ahead by a window at most, so that what comes early in a
/// long text does not wait for a search through all the rest.
class CallFinder {
 public:
  explicit CallFinder(std::string_view text) : m_text(text) {}

  /// The next call that begins before `limit`; then it counts as found. `limit` when there is none.
  std::size_t nextBefore(std::size_t limit);

 private:
  void lookAhead();

  std::string_view m_text;
  bool m_isKnown = false;
  std::size_t m_at = 0;  ///< of the next call when it is known; else where the search goes on
};

}  // namespace glossmill
