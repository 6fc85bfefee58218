#pragma once

#include <cstddef>

namespace glossmill {

/// A part of a text, in bytes.
struct TextRange {
  std::size_t begin = 0;
  std::size_t length = 0;

  std::size_t end() const { return begin + length; }
  bool operator==(const TextRange&) const = default;
};

}  // namespace glossmill
