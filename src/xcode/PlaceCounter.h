#pragma once

#include <cstddef>
#include <string_view>

#include "xcode/SyntaxError.h"

namespace glossmill {

/// Turns places of a text, which ascend, into lines and columns. All questions together cost one pass over the text.
class PlaceCounter {
 public:
  explicit PlaceCounter(std::string_view text) : m_text(text) {}

  TextPlace at(std::size_t place);

 private:
  std::string_view m_text;
  std::size_t m_at = 0;
  TextPlace m_place{1, 1};
};

}  // namespace glossmill
