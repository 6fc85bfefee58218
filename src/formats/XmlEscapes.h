#pragma once

#include <string>
#include <string_view>

namespace glossmill {

/// What XML 1.0 has no way to hold: control characters but tab and line ends, and two that are no characters.
constexpr bool xmlLacks(char32_t character) {
  const bool isControl = character < 0x20 && character != '\t' && character != '\n' && character != '\r';
  return isControl || character == 0xFFFE || character == 0xFFFF;
}

/// Appends a text between tags. Carriage returns are written so that a reader does not take them for line ends.
void appendXmlText(std::string& xml, std::string_view text);

/// Appends ` name="value"`. White space other than blanks is written so that a reader does not take it for blanks.
void appendXmlAttribute(std::string& xml, std::string_view name, std::string_view value);

/// A language's code as XML spells it: "pt-BR" for "pt_BR".
std::string xmlLanguage(std::string_view code);

}  // namespace glossmill
