#include "formats/XmlCharacters.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "formats/XmlEscapes.h"

namespace glossmill {

namespace {

constexpr auto kNameBytes = [] {
  std::array<bool, 256> isInName{};
  for (std::size_t value = 0; value < isInName.size(); ++value) {
    const char byte = static_cast<char>(static_cast<unsigned char>(value));
    isInName[value] = startsXmlName(byte) || (byte >= '0' && byte <= '9') || byte == '-' || byte == '.';
  }
  return isInName;
}();

}  // namespace

bool isInXmlName(char byte) {
  return kNameBytes[static_cast<unsigned char>(byte)];
}

std::size_t firstLackedByXml(std::string_view text) {
  constexpr std::size_t kBlock = 4096;
  const auto lacks = [](char byte) { return (byte & 0xE0) == 0 && xmlLacks(static_cast<unsigned char>(byte)); };
  for (std::size_t at = 0; at < text.size(); at += kBlock) {
    const std::string_view block = text.substr(at, kBlock);
    unsigned found = 0;
    for (const char byte : block) found |= static_cast<unsigned>(lacks(byte));
    if (found == 0) continue;
    return at + static_cast<std::size_t>(std::ranges::find_if(block, lacks) - block.begin());
  }
  const std::size_t noCharacter = std::min(text.find("\xEF\xBF\xBE"), text.find("\xEF\xBF\xBF"));
  return std::min(noCharacter, text.size());
}

bool isXmlCharacterNumber(std::string_view number) {
  const bool isHex = number.starts_with("#x");
  number.remove_prefix(isHex ? 2 : 1);
  if (number.empty() || number.size() > 10) return false;
  const std::uint64_t base = isHex ? 16 : 10;
  std::uint64_t value = 0;
  for (const char byte : number) {
    const char letter = static_cast<char>(byte | 0x20);
    std::uint64_t digit = base;
    if (byte >= '0' && byte <= '9') digit = static_cast<std::uint64_t>(byte - '0');
    if (isHex && letter >= 'a' && letter <= 'f') digit = static_cast<std::uint64_t>(letter - 'a') + 10;
    if (digit >= base) return false;
    value = value * base + digit;
  }
  const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
  return value <= 0x10FFFF && !isSurrogate && !xmlLacks(static_cast<char32_t>(value));
}

}  // namespace glossmill
