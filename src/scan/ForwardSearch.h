#pragma once

#include <cstddef>
#include <string_view>

namespace glossmill {

/// Finds the next place of one byte for questions that go forwards through a text. What an earlier question has looked
/// through is not looked through again, so any number of questions costs one pass over the text.
class ForwardSearch {
 public:
  ForwardSearch(std::string_view text, char wanted) : m_text(text), m_wanted(wanted) {}

  /// The first place at or after `from`, or `limit` when there is none before it; `limit` is at most the length of the
  /// text.
  std::size_t next(std::size_t from, std::size_t limit);

 private:
  std::string_view m_text;
  char m_wanted;
  std::size_t m_from = 0;  ///< from here ...
  std::size_t m_end = 0;   ///< ... to here the byte does not stand,
  bool m_isHit = false;    ///< and this says that it stands at m_end
};

}  // namespace glossmill
