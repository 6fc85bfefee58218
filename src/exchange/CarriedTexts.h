#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "exchange/ExchangeFormat.h"

namespace glossmill {

/// Says which character a format lacks.
using LacksCharacter = bool (*)(char32_t character);

/// The first character of the text that the format lacks.
std::optional<char32_t> firstLacking(std::string_view text, LacksCharacter lacks);

/// The text with U+FFFD in the place of each character that the format lacks.
std::string withoutLacking(std::string_view text, LacksCharacter lacks);

/// The string as one that the format leaves out, where its key, its source text or a translation holds a character
/// that the format lacks.
std::optional<LeftOutUnit> leftOutFor(const ExchangeUnit& unit, LacksCharacter lacks);

/// No text file holds it without being taken for something else.
inline bool isNul(char32_t character) {
  return character == 0;
}

}  // namespace glossmill
