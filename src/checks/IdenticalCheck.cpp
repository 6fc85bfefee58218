#include "checks/IdenticalCheck.h"

#include <algorithm>

#include "checks/Characters.h"

namespace glossmill {

namespace {

/// Everything that is not ASCII passes for a letter, but for white space.
bool isLetter(char32_t character) {
  return (character >= U'a' && character <= U'z') || (character >= U'A' && character <= U'Z') || character >= 0xC0;
}

/// Words have two letters in a row, outside of specifiers.
std::size_t countWords(std::string_view text, TextForm form) {
  const FormatReading format = readFormat(text);
  const auto isInSpecifier = [&format](std::size_t place) {
    return std::any_of(format.uses.begin(), format.uses.end(), [place](const FormatArgumentUse& use) {
      return place >= use.range.begin && place < use.range.begin + use.range.length;
    });
  };
  std::size_t words = 0;
  std::size_t letters = 0;
  for (const Character& character : charactersOf(text, form)) {
    const bool counts =
        isLetter(character.value) && !isWhiteSpace(character.value) && !isInSpecifier(character.range.begin);
    letters = counts ? letters + 1 : 0;
    if (letters == 2) ++words;
  }
  return words;
}

}  // namespace

std::vector<Finding> identicalFindings(const CheckedText& text) {
  if (text.translation != text.source || baseOfCode(text.language) == baseOfCode(text.baseLanguage)) return {};
  if (countWords(text.source, text.form) < 2) return {};
  return {{Check::Identical, Severity::Info, FindingKind::SameAsSource, {}, {}, {}, {0, text.translation.size()}}};
}

}  // namespace glossmill
