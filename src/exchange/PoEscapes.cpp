#include "exchange/PoEscapes.h"

#include <algorithm>
#include <utility>

#include "text/Utf8.h"

namespace glossmill {

namespace {

constexpr std::pair<char, char> kEscapes[] = {{'\n', 'n'}, {'\t', 't'}, {'\r', 'r'}, {'\a', 'a'}, {'\b', 'b'},
                                              {'\f', 'f'}, {'\v', 'v'}, {'"', '"'},  {'\\', '\\'}};

void appendEscaped(std::string& out, char byte) {
  for (const auto& [meant, letter] : kEscapes) {
    if (byte != meant) continue;
    out += '\\';
    out += letter;
    return;
  }
  const auto value = static_cast<unsigned char>(byte);
  if (value >= 0x20 && value != 0x7F) {
    out += byte;
    return;
  }
  out += '\\';
  for (const int shift : {6, 3, 0}) out += static_cast<char>('0' + ((value >> shift) & 7));
}

int digitOf(char byte, int base) {
  int digit = base;
  if (byte >= '0' && byte <= '9') digit = byte - '0';
  if (byte >= 'a' && byte <= 'f') digit = byte - 'a' + 10;
  if (byte >= 'A' && byte <= 'F') digit = byte - 'A' + 10;
  return digit < base ? digit : -1;
}

/// The number at `at`, of at most `most` digits; the place moves behind it. Nothing where there is none, or it is no
/// byte.
std::optional<char> takeByte(std::string_view text, std::size_t& at, int base, std::size_t most) {
  int value = 0;
  std::size_t count = 0;
  for (; count < most && at < text.size(); ++count, ++at) {
    const int digit = digitOf(text[at], base);
    if (digit < 0) break;
    value = value * base + digit;
  }
  if (count == 0 || value > 0xFF) return std::nullopt;
  return static_cast<char>(static_cast<unsigned char>(value));
}

/// What stands behind a backslash.
std::optional<char> takeEscape(std::string_view text, std::size_t& at) {
  if (at == text.size()) return std::nullopt;
  for (const auto& [meant, letter] : kEscapes) {
    if (text[at] != letter) continue;
    ++at;
    return meant;
  }
  if (text[at] == 'x') return takeByte(text, ++at, 16, 2);
  return takeByte(text, at, 8, 3);
}

}  // namespace

void appendPoText(std::string& out, std::string_view keyword, std::string_view text) {
  const std::size_t firstBreak = text.find('\n');
  const bool hasLines = firstBreak != text.npos && firstBreak + 1 < text.size();
  out.append(keyword).append(hasLines ? " \"\"\n\"" : " \"");
  for (std::size_t at = 0; at < text.size(); ++at) {
    appendEscaped(out, text[at]);
    if (text[at] == '\n' && at + 1 < text.size()) out += "\"\n\"";
  }
  out += "\"\n";
}

std::optional<std::string> poTextOf(std::string_view escaped) {
  std::string text;
  for (std::size_t at = 0; at < escaped.size();) {
    const std::size_t plainEnd = std::min(escaped.find('\\', at), escaped.size());
    text += escaped.substr(at, plainEnd - at);
    at = plainEnd;
    if (at == escaped.size()) break;
    const std::optional<char> meant = takeEscape(escaped, ++at);
    if (!meant) return std::nullopt;
    text += *meant;
  }
  if (!isValidUtf8(text)) return std::nullopt;
  return text;
}

}  // namespace glossmill
