#include "xcode/CatalogOrder.h"

#include <algorithm>
#include <cstddef>

#include "xcode/SourceText.h"

namespace glossmill {

namespace {

bool isAsciiLetter(char character) {
  const char lower = static_cast<char>(character | 0x20);
  return lower >= 'a' && lower <= 'z';
}

/// Signs come first, then digits, letters, and all that is not ASCII.
int rankOf(char character) {
  if (static_cast<unsigned char>(character) >= 0x80) return 0x10000 + static_cast<unsigned char>(character);
  if (isAsciiLetter(character)) return 0x1000 + (character | 0x20);
  return isDigit(character) ? 0x100 + character : character;
}

/// Takes the digits off the front, without zeros in front of them.
std::string_view takeNumber(std::string_view& text) {
  const auto* const end = std::find_if_not(text.begin(), text.end(), isDigit);
  std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(digits.size());
  while (digits.size() > 1 && digits.front() == '0') digits.remove_prefix(1);
  return digits;
}

/// Less than, equal to or greater than 0.
int compareNumbers(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
  return a.compare(b);
}

int compareWithoutCase(std::string_view a, std::string_view b) {
  while (!a.empty() && !b.empty()) {
    if (isDigit(a.front()) && isDigit(b.front())) {
      const std::string_view first = takeNumber(a);
      const int order = compareNumbers(first, takeNumber(b));
      if (order != 0) return order;
      continue;
    }
    const int order = rankOf(a.front()) - rankOf(b.front());
    if (order != 0) return order;
    a.remove_prefix(1);
    b.remove_prefix(1);
  }
  return static_cast<int>(!a.empty()) - static_cast<int>(!b.empty());
}

}  // namespace

bool comesBeforeInCatalog(std::string_view a, std::string_view b) {
  const int order = compareWithoutCase(a, b);
  return order != 0 ? order < 0 : b < a;
}

}  // namespace glossmill
