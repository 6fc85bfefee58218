#include "text/Utf16.h"

#include <algorithm>

#include "text/Utf8.h"

namespace glossmill {

namespace {

/// UTF-16 units that begin with this byte of UTF-8: none for a continuation byte, two for a lead of four bytes.
std::size_t unitsOf(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  if ((value & 0xC0) == 0x80) return 0;
  return value >= 0xF0 ? 2 : 1;
}

}  // namespace

std::size_t utf16Length(std::string_view text) {
  std::size_t units = 0;
  for (const char byte : text) units += unitsOf(byte);
  return units;
}

std::string clipUtf16(std::string_view text, std::size_t units) {
  if (asciiPrefix(text.substr(0, units)) == std::min(units, text.size())) return std::string(text.substr(0, units));
  std::size_t taken = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t more = unitsOf(text[at]);
    if (more == 0) continue;
    if (taken == units) return std::string(text.substr(0, at));
    if (taken + more > units) return std::string(text.substr(0, at)).append(kReplacementCharacter);
    taken += more;
  }
  return std::string(text);
}

}  // namespace glossmill
