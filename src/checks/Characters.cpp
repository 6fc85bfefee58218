#include "checks/Characters.h"

#include "text/Utf8.h"

namespace glossmill {

namespace {

/// What a backslash and this letter mean in a raw text; 0 where they mean nothing to the checks.
char32_t escapedCharacter(char letter) {
  if (letter == 'n') return U'\n';
  if (letter == 'r') return U'\r';
  if (letter == 't') return U'\t';
  return 0;
}

char32_t takeCharacter(std::string_view& rest, TextForm form) {
  if (form == TextForm::Raw && rest.size() > 1 && rest[0] == '\\') {
    if (const char32_t escaped = escapedCharacter(rest[1])) {
      rest.remove_prefix(2);
      return escaped;
    }
  }
  return takeCodePoint(rest);
}

std::vector<Character> charactersFrom(std::string_view text, std::size_t place, TextForm form) {
  std::vector<Character> characters;
  characters.reserve(text.size() - place);
  for (std::string_view rest = text.substr(place); !rest.empty();) {
    const std::size_t begin = text.size() - rest.size();
    const char32_t value = takeCharacter(rest, form);
    characters.push_back({value, {begin, text.size() - rest.size() - begin}});
  }
  return characters;
}

}  // namespace

std::vector<Character> charactersOf(std::string_view text, TextForm form) {
  return charactersFrom(text, 0, form);
}

std::vector<Character> lastCharactersOf(std::string_view text, TextForm form) {
  constexpr std::size_t kBytes = 32;
  std::size_t place = text.size() <= kBytes ? 0 : text.size() - kBytes;
  while (place < text.size() && (static_cast<unsigned char>(text[place]) & 0xC0) == 0x80) ++place;
  return charactersFrom(text, place, form);
}

bool isLineBreak(char32_t character) {
  return character == U'\n' || character == U'\r' || character == U'\u2028' || character == U'\u2029';
}

bool isNoBreakSpace(char32_t character) {
  return character == U'\u00A0' || character == U'\u202F';
}

bool isWhiteSpace(char32_t character) {
  const bool isWide = character >= U'\u2000' && character <= U'\u200A';
  return character == U' ' || character == U'\t' || character == U'\u3000' || isWide || isNoBreakSpace(character) ||
         isLineBreak(character);
}

bool isXcodePlaceholder(std::string_view text) {
  return text == "Text Cell" || text == "Table View Cell" || text == "Header View Cell";
}

std::string_view baseOfCode(std::string_view code) {
  return code.substr(0, code.find_first_of("-_"));
}

}  // namespace glossmill
