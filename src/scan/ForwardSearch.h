#pragma once

#include <cstddef>
#include <string_view>

namespace glossmill {

/// Finds the next place of one byte for questions that go forwards through a text. An answer that still holds is given
/// again, so any number of questions costs one pass over the text.
class ForwardSearch {
 public:
  ForwardSearch(std::string_view text, char wanted) : m_text(text), m_wanted(wanted) {}

  /// The first place at or after `from`, or the length of the text.
  std::size_t next(std::size_t from);

 private:
  std::string_view m_text;
  char m_wanted;
  bool m_asked = false;
  std::size_t m_from = 0;
  std::size_t m_found = 0;
};

}  // namespace glossmill
