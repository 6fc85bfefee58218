#include "text/FoldCase.h"

#include "text/Utf8.h"

namespace glossmill {

namespace {

// The first bytes of the first and the last letter with a twin; such a letter and its twin take two bytes each.
constexpr unsigned kFirstLead = 0xC3;
constexpr unsigned kLastLead = 0xD0;

bool isBetween(char32_t codePoint, char32_t first, char32_t last) {
  return codePoint >= first && codePoint <= last;
}

/// In Latin Extended-A capital and small letters alternate, in two stretches with odd capitals.
char32_t foldLatinExtended(char32_t codePoint) {
  if (codePoint == 0x130 || codePoint == 0x138 || codePoint == 0x149 || codePoint == 0x17F) return codePoint;
  if (codePoint == 0x178) return 0xFF;
  const bool capitalsAreOdd = isBetween(codePoint, 0x139, 0x148) || isBetween(codePoint, 0x179, 0x17E);
  const bool isCapital = (codePoint % 2 == 1) == capitalsAreOdd;
  return isCapital ? codePoint + 1 : codePoint;
}

char32_t foldLetter(char32_t codePoint) {
  if (isBetween(codePoint, 0xC0, 0xDE) && codePoint != 0xD7) return codePoint + 0x20;
  if (isBetween(codePoint, 0x100, 0x17F)) return foldLatinExtended(codePoint);
  if (isBetween(codePoint, 0x391, 0x3A9)) return codePoint + 0x20;
  if (isBetween(codePoint, 0x410, 0x42F)) return codePoint + 0x20;
  if (isBetween(codePoint, 0x400, 0x40F)) return codePoint + 0x50;
  return codePoint;
}

/// In bytes beyond ASCII no byte looks like one of ASCII.
void foldAscii(std::string& text) {
  for (char& byte : text) byte = static_cast<char>(byte >= 'A' && byte <= 'Z' ? byte + 0x20 : byte);
}

/// A byte that follows the first one of a sequence is never taken for a first one.
void foldOtherLetters(std::string& text) {
  for (std::size_t at = 0; at + 1 < text.size(); ++at) {
    const unsigned lead = static_cast<unsigned char>(text[at]);
    if (lead < kFirstLead || lead > kLastLead) continue;
    std::string_view letter = std::string_view(text).substr(at, 2);
    putUtf8(text.data() + at, foldLetter(takeCodePoint(letter)));
  }
}

}  // namespace

std::string foldCase(std::string_view text) {
  std::string folded(text);
  foldAscii(folded);
  foldOtherLetters(folded);
  return folded;
}

}  // namespace glossmill
