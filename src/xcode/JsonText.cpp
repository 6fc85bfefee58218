#include "xcode/JsonText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "text/ByteSearch.h"
#include "text/Utf8.h"
#include "xcode/EscapeDigits.h"

namespace glossmill {

namespace {

constexpr std::size_t kUnitDigits = 4;
constexpr std::array<std::pair<char, char>, 8> kJsonLetters = {
    {{'"', '"'}, {'\\', '\\'}, {'/', '/'}, {'b', '\b'}, {'f', '\f'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'}}};

char32_t unitAt(std::string_view text, std::size_t at) {
  char32_t unit = 0;
  for (const char digit : text.substr(at, kUnitDigits)) unit = unit * 16 + digitValue(digit, 16).value_or(0);
  return unit;
}

bool isFirstHalf(char32_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}

bool isSecondHalf(char32_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

/// Reads the number behind "\u" at `at`, with the second half of a pair where there is one, and moves behind it.
char32_t takeNumbered(std::string_view spelled, std::size_t& at) {
  constexpr std::size_t kEscape = 2 + kUnitDigits;
  const char32_t unit = unitAt(spelled, at + 2);
  at += kEscape;
  if (!isFirstHalf(unit)) return isSecondHalf(unit) ? 0xFFFD : unit;
  const bool hasNext = spelled.substr(at).starts_with("\\u");
  const char32_t next = hasNext ? unitAt(spelled, at + 2) : 0;
  if (!isSecondHalf(next)) return 0xFFFD;
  at += kEscape;
  return 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00);
}

char letterOf(char spelled) {
  const auto* const found = std::find_if(kJsonLetters.begin(), kJsonLetters.end(),
                                         [spelled](const auto& pair) { return pair.first == spelled; });
  return found == kJsonLetters.end() ? '\0' : found->second;
}

void appendEscaped(std::string& text, char byte) {
  constexpr std::string_view kHex = "0123456789abcdef";
  const auto* const found =
      std::find_if(kJsonLetters.begin(), kJsonLetters.end(), [byte](const auto& pair) { return pair.second == byte; });
  if (found != kJsonLetters.end()) {
    text += '\\';
    text += found->first;
    return;
  }
  const auto number = static_cast<unsigned char>(byte);
  text += "\\u00";
  text += kHex[number >> 4U];
  text += kHex[number & 15U];
}

}  // namespace

std::size_t endOfJsonEscape(std::string_view text, std::size_t at) {
  if (at + 1 >= text.size()) return at;
  if (letterOf(text[at + 1]) != '\0') return at + 2;
  if (text[at + 1] != 'u' || text.size() - at < 2 + kUnitDigits) return at;
  const std::string_view digits = text.substr(at + 2, kUnitDigits);
  const bool areDigits =
      std::all_of(digits.begin(), digits.end(), [](char digit) { return digitValue(digit, 16).has_value(); });
  return areDigits ? at + 2 + kUnitDigits : at;
}

std::string unescapeJson(std::string_view spelled) {
  std::string value;
  for (std::size_t at = 0; at < spelled.size();) {
    const std::size_t backslash = findByte(spelled, '\\', at);
    value += spelled.substr(at, backslash - at);
    at = backslash;
    if (at + 1 >= spelled.size()) break;
    if (spelled[at + 1] == 'u') {
      appendUtf8(value, takeNumbered(spelled, at));
    } else {
      value += letterOf(spelled[at + 1]);
      at += 2;
    }
  }
  return value;
}

std::string escapeJson(std::string_view value) {
  std::string text;
  text.reserve(value.size());
  for (const char byte : value) {
    const bool isControl = static_cast<unsigned char>(byte) < 0x20;
    if (isControl || byte == '"' || byte == '\\') {
      appendEscaped(text, byte);
    } else {
      text += byte;
    }
  }
  return text;
}

}  // namespace glossmill
