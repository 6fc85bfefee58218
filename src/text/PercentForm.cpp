#include "text/PercentForm.h"

#include <cstddef>

namespace glossmill {

namespace {

constexpr std::string_view kFormDigits = "0123456789ABCDEF";
constexpr std::string_view kEmpty = "%";

bool standsAsItIs(char byte) {
  constexpr std::string_view kPlain = "/-._~!$&'()*+,=:@";
  const bool isLetter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
  return isLetter || (byte >= '0' && byte <= '9') || kPlain.find(byte) != std::string_view::npos;
}

/// Takes one character off `word`; nothing when it cannot stand there.
std::optional<char> taken(std::string_view& word) {
  const char first = word.front();
  if (standsAsItIs(first)) {
    word.remove_prefix(1);
    return first;
  }
  if (first != '%' || word.size() < 3) return std::nullopt;
  const std::size_t high = kFormDigits.find(word[1]);
  const std::size_t low = kFormDigits.find(word[2]);
  if (high == std::string_view::npos || low == std::string_view::npos) return std::nullopt;
  word.remove_prefix(3);
  return static_cast<char>(high << 4 | low);
}

}  // namespace

std::string percentForm(std::string_view text) {
  if (text.empty()) return std::string(kEmpty);
  std::string word;
  for (const char byte : text) {
    if (standsAsItIs(byte)) {
      word += byte;
      continue;
    }
    const auto value = static_cast<unsigned char>(byte);
    word += '%';
    word += kFormDigits[value >> 4];
    word += kFormDigits[value & 0xF];
  }
  return word;
}

std::optional<std::string> fromPercentForm(std::string_view word) {
  if (word.empty()) return std::nullopt;
  std::string text;
  if (word == kEmpty) return text;
  while (!word.empty()) {
    const std::optional<char> byte = taken(word);
    if (!byte) return std::nullopt;
    text += *byte;
  }
  return text;
}

}  // namespace glossmill
