#include "text/PrintableText.h"

#include <bit>
#include <cstdio>

#include "text/ByteBlock.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

constexpr char kDelete = 0x7F;
constexpr char kLeadOfHighControls = '\xC2';  ///< of U+0080 to U+009F, and of harmless characters behind them
constexpr char kLeadOfDirections = '\xE2';    ///< the same of U+202A to U+2069

bool isControl(char32_t codePoint) {
  return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0);
}

/// Embeddings, overrides and isolates.
bool isDirection(char32_t codePoint) {
  return (codePoint >= 0x202A && codePoint <= 0x202E) || (codePoint >= 0x2066 && codePoint <= 0x2069);
}

bool mayStartHarm(char byte) {
  return static_cast<unsigned char>(byte) < 0x20 || byte == kDelete || byte == kLeadOfHighControls ||
         byte == kLeadOfDirections;
}

void appendCode(std::string& printable, char32_t codePoint) {
  char code[16];
  std::snprintf(code, sizeof code, "<U+%04X>", static_cast<unsigned>(codePoint));
  printable.append(code);
}

/// The length of what stands in front of the first byte that may start a character which does not stay.
std::size_t harmlessPrefix(std::string_view text) {
  constexpr ByteBlock::Mask kWhole = 0xFFFF;
  std::size_t at = 0;
  for (; at + ByteBlock::kSize <= text.size(); at += ByteBlock::kSize) {
    const ByteBlock block(text.data() + at);
    const ByteBlock::Mask hits = (block.atLeast(0x20) ^ kWhole) | block.equalEither(kDelete, kLeadOfHighControls) |
                                 block.equal(kLeadOfDirections);
    if (hits != 0) return at + static_cast<std::size_t>(std::countr_zero(hits));
  }
  while (at < text.size() && !mayStartHarm(text[at])) ++at;
  return at;
}

void appendValid(std::string& printable, std::string_view text, std::string_view allowedControls) {
  while (true) {
    const std::size_t harmless = harmlessPrefix(text);
    printable.append(text.substr(0, harmless));
    text.remove_prefix(harmless);
    if (text.empty()) return;
    const std::string_view before = text;
    const char32_t codePoint = takeCodePoint(text);
    const std::string_view bytes = before.substr(0, before.size() - text.size());
    if (isDirection(codePoint)) {
      appendCode(printable, codePoint);
      continue;
    }
    const bool stays = !isControl(codePoint) || allowedControls.find(bytes) != std::string_view::npos;
    printable.append(stays ? bytes : kReplacementCharacter);
  }
}

void appendPrintable(std::string& printable, std::string_view text, std::string_view allowedControls) {
  while (true) {
    const std::size_t valid = validUtf8Prefix(text);
    appendValid(printable, text.substr(0, valid), allowedControls);
    text.remove_prefix(valid);
    if (text.empty()) return;
    printable.append(kReplacementCharacter);
    text.remove_prefix(1);
  }
}

}  // namespace

void appendPrintableText(std::string& printable, std::string_view text) {
  appendPrintable(printable, text, "\n\t");
}

std::string printableLine(std::string_view text) {
  std::string printable;
  appendPrintable(printable, text, "");
  return printable;
}

}  // namespace glossmill
