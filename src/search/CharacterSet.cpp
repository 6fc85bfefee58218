#include "search/CharacterSet.h"

#include <algorithm>
#include <string>

#include "text/CharacterKinds.h"
#include "text/FoldCase.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

/// Behind it no character has a twin that foldCase() knows.
constexpr char32_t kLastWithTwin = 0x45F;

char32_t folded(char32_t character) {
  std::string text;
  appendUtf8(text, character);
  text = foldCase(text);
  std::string_view rest = text;
  return takeCodePoint(rest);
}

bool isOf(CharacterSet::Class wanted, char32_t character) {
  bool is = false;
  switch (wanted.kind) {
    case CharacterSet::Kind::Digits:
      is = character >= '0' && character <= '9';
      break;
    case CharacterSet::Kind::Words:
      is = isWordCharacter(character);
      break;
    case CharacterSet::Kind::Blanks:
      is = isBlankCharacter(character);
      break;
  }
  return is != wanted.isNegated;
}

}  // namespace

bool CharacterSet::holds(char32_t character) const {
  const bool isHeld =
      std::any_of(stretches.begin(), stretches.end(),
                  [character](const auto& it) { return it.first <= character && character <= it.second; }) ||
      std::any_of(classes.begin(), classes.end(), [character](Class it) { return isOf(it, character); });
  return isHeld != isNegated;
}

void CharacterSet::foldCases() {
  const std::size_t count = stretches.size();
  for (std::size_t i = 0; i < count; ++i) {
    const auto [first, last] = stretches[i];
    for (char32_t character = first; character <= std::min(last, kLastWithTwin); ++character) {
      const char32_t twin = folded(character);
      if (twin != character) stretches.emplace_back(twin, twin);
    }
  }
}

}  // namespace glossmill
