#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace glossmill {

/// A place in a text, as an editor shows it: lines from 1, ended by a line feed, a carriage return or both; columns in
/// UTF-16 units from 1.
struct TextPlace {
  std::size_t line = 0;
  std::size_t column = 0;
  bool operator==(const TextPlace&) const = default;
};

/// Why a text cannot be read any further: one sentence, without the place.
struct SyntaxError {
  TextPlace place;
  std::string sentence;
  bool operator==(const SyntaxError&) const = default;
};

/// Reads everything in front of `at`, a byte of the valid UTF-8 text.
TextPlace placeOf(std::string_view text, std::size_t at);

}  // namespace glossmill
