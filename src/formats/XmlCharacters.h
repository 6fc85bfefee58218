#pragma once

#include <cstddef>
#include <string_view>

namespace glossmill {

inline constexpr std::string_view kXmlWhite = " \t\r\n";

constexpr bool isXmlWhite(char byte) {
  return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n';
}

/// Of a name, whatever stands behind it; of what is not ASCII, everything.
constexpr bool startsXmlName(char byte) {
  const char letter = static_cast<char>(byte | 0x20);
  return (letter >= 'a' && letter <= 'z') || byte == '_' || byte == ':' || (byte & 0x80) != 0;
}

bool isInXmlName(char byte);

/// The place of the first character of UTF-8 text that XML has no way to hold; the end of the text where there is none.
std::size_t firstLackedByXml(std::string_view text);

/// Whether a number such as "#10" or "#xA" names a character.
bool isXmlCharacterNumber(std::string_view number);

}  // namespace glossmill
