#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "text/Utf8.h"

namespace glossmill {

/// The value of a digit in this base, at most 16; nothing for another byte.
inline std::optional<std::uint32_t> digitValue(char byte, std::uint32_t base) {
  std::uint32_t value = 16;
  if (byte >= '0' && byte <= '9') value = static_cast<std::uint32_t>(byte - '0');
  if (byte >= 'a' && byte <= 'f') value = static_cast<std::uint32_t>(byte - 'a') + 10;
  if (byte >= 'A' && byte <= 'F') value = static_cast<std::uint32_t>(byte - 'A') + 10;
  return value < base ? std::optional(value) : std::nullopt;
}

/// The digits of an escape. A number that is too large for 32 bits comes out as the largest.
struct EscapeDigits {
  std::uint32_t value = 0;
  std::size_t count = 0;
};

/// Takes at most `most` digits from the front of `text`.
inline EscapeDigits takeDigits(std::string_view& text, std::uint32_t base, std::size_t most) {
  EscapeDigits digits;
  while (digits.count < most && digits.count < text.size()) {
    const std::optional<std::uint32_t> digit = digitValue(text[digits.count], base);
    if (!digit) break;
    const std::uint64_t value = std::uint64_t{digits.value} * base + *digit;
    digits.value = value > UINT32_MAX ? UINT32_MAX : static_cast<std::uint32_t>(value);
    ++digits.count;
  }
  text.remove_prefix(digits.count);
  return digits;
}

/// Says whether Unicode has a character of this number that can stand in a text.
inline bool isCharacter(std::uint32_t number) {
  return number <= 0x10FFFF && (number < 0xD800 || number > 0xDFFF);
}

}  // namespace glossmill
