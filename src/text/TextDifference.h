#pragma once

#include <cstddef>
#include <string_view>

namespace glossmill {

/// The one stretch in which two texts differ, in bytes; never cuts a character of valid UTF-8.
struct TextDifference {
  std::size_t begin = 0;
  std::size_t endBefore = 0;
  std::size_t endAfter = 0;

  bool operator==(const TextDifference&) const = default;
};

/// Texts that are equal differ in an empty stretch at their end.
TextDifference differenceOf(std::string_view before, std::string_view after);

}  // namespace glossmill
