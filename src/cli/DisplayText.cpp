#include "cli/DisplayText.h"

#include <algorithm>
#include <array>

#include "text/Utf8.h"

namespace glossmill {

namespace {

struct Range {
  char32_t first;
  char32_t last;
};

/// Combining marks and joiners, which stand on the character before them.
constexpr std::array kNoColumn = {Range{0x0300, 0x036F}, Range{0x0483, 0x0489}, Range{0x0591, 0x05BD},
                                  Range{0x064B, 0x065F}, Range{0x0E34, 0x0E3A}, Range{0x0E47, 0x0E4E},
                                  Range{0x200B, 0x200F}, Range{0x20D0, 0x20F0}, Range{0x302A, 0x302D},
                                  Range{0x3099, 0x309A}, Range{0xFE00, 0xFE0F}};

/// Characters of East Asian scripts, and emoji.
constexpr std::array kTwoColumns = {Range{0x1100, 0x115F},   Range{0x2E80, 0x303E},  Range{0x3041, 0xA4CF},
                                    Range{0xAC00, 0xD7A3},   Range{0xF900, 0xFAFF},  Range{0xFE30, 0xFE6F},
                                    Range{0xFF00, 0xFF60},   Range{0xFFE0, 0xFFE6},  Range{0x1F300, 0x1F64F},
                                    Range{0x1F900, 0x1F9FF}, Range{0x20000, 0x3FFFD}};

template <typename Ranges>
bool contains(const Ranges& ranges, char32_t codePoint) {
  return std::any_of(ranges.begin(), ranges.end(),
                     [codePoint](const Range& range) { return codePoint >= range.first && codePoint <= range.last; });
}

std::size_t columns(char32_t codePoint) {
  if (codePoint < 0x0300) return 1;
  if (contains(kNoColumn, codePoint)) return 0;
  return contains(kTwoColumns, codePoint) ? 2 : 1;
}

}  // namespace

std::size_t displayWidth(std::string_view text) {
  std::size_t width = 0;
  while (!text.empty()) width += columns(takeCodePoint(text));
  return width;
}

std::string inQuotes(std::string_view text) {
  return std::string("\"").append(text).append("\"");
}

std::string counted(std::size_t count, std::string_view noun) {
  return std::to_string(count).append(" ").append(noun).append(count == 1 ? "" : "s");
}

std::string groupedNumber(std::size_t number) {
  std::string text = std::to_string(number);
  for (std::size_t behind = 3; behind < text.size(); behind += 4) text.insert(text.size() - behind, ",");
  return text;
}

}  // namespace glossmill
