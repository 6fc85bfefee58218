#pragma once

#include <cstddef>
#include <string_view>

namespace glossmill {

/// Tells the lines of places that ascend, reading the text once. Lines are those of TextPlace.
class LineCounter {
 public:
  explicit LineCounter(std::string_view text) : m_text(text) {}

  /// From 1; `at` is not in front of the place that was asked for last.
  std::size_t lineOf(std::size_t at);

 private:
  std::string_view m_text;
  std::size_t m_lineStart = 0;
  std::size_t m_line = 1;
};

}  // namespace glossmill
