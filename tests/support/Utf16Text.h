#pragma once

#include <string>
#include <string_view>

#include "text/Utf8.h"

namespace glossmill {

inline std::u16string toUtf16(std::string_view text) {
  std::u16string units;
  while (!text.empty()) {
    const char32_t codePoint = takeCodePoint(text);
    if (codePoint < 0x10000) {
      units.push_back(static_cast<char16_t>(codePoint));
      continue;
    }
    units.push_back(static_cast<char16_t>(0xD800 + ((codePoint - 0x10000) >> 10)));
    units.push_back(static_cast<char16_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF)));
  }
  return units;
}

/// Half of a surrogate pair gives U+FFFD.
inline std::string toUtf8(std::u16string_view units) {
  std::string text;
  for (std::size_t i = 0; i < units.size(); ++i) {
    const char32_t unit = units[i];
    if (unit < 0xD800 || unit > 0xDFFF) {
      appendUtf8(text, unit);
    } else if (unit < 0xDC00 && i + 1 < units.size() && (units[i + 1] & 0xFC00) == 0xDC00) {
      appendUtf8(text, 0x10000 + ((unit - 0xD800) << 10) + (units[i + 1] - 0xDC00U));
      ++i;
    } else {
      text.append(kReplacementCharacter);
    }
  }
  return text;
}

}  // namespace glossmill
