#include "text/TextDifference.h"

#include <algorithm>

namespace glossmill {

namespace {

bool isInsideCharacter(std::string_view text, std::size_t at) {
  return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
}

}  // namespace

TextDifference differenceOf(std::string_view before, std::string_view after) {
  const std::size_t shorter = std::min(before.size(), after.size());
  std::size_t begin = 0;
  while (begin < shorter && before[begin] == after[begin]) ++begin;
  while (begin > 0 && (isInsideCharacter(before, begin) || isInsideCharacter(after, begin))) --begin;
  std::size_t same = 0;
  while (same < shorter - begin && before[before.size() - same - 1] == after[after.size() - same - 1]) ++same;
  while (same > 0 && isInsideCharacter(before, before.size() - same)) --same;
  return {begin, before.size() - same, after.size() - same};
}

}  // namespace glossmill
