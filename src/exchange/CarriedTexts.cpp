#include "exchange/CarriedTexts.h"

#include <cstdio>

#include "text/Utf8.h"

namespace glossmill {

namespace {

std::optional<char32_t> firstLackingOf(const ExchangeUnit& unit, LacksCharacter lacks) {
  for (const std::string* text : {&unit.key, &unit.source, &unit.table, &unit.file}) {
    if (const auto found = firstLacking(*text, lacks)) return found;
  }
  for (const UnitText& text : unit.texts) {
    if (const auto found = firstLacking(text.text, lacks)) return found;
  }
  return std::nullopt;
}

std::string nameOfCharacter(char32_t character) {
  char name[16];
  std::snprintf(name, sizeof name, "U+%04X", static_cast<unsigned>(character));
  return name;
}

}  // namespace

std::optional<char32_t> firstLacking(std::string_view text, LacksCharacter lacks) {
  if (!isValidUtf8(text)) return 0xFFFD;
  while (!text.empty()) {
    const char32_t character = takeCodePoint(text);
    if (lacks(character)) return character;
  }
  return std::nullopt;
}

std::string withoutLacking(std::string_view text, LacksCharacter lacks) {
  std::string kept;
  while (!text.empty()) {
    const std::size_t valid = validUtf8Prefix(text);
    for (std::string_view rest = text.substr(0, valid); !rest.empty();) {
      const char32_t character = takeCodePoint(rest);
      appendUtf8(kept, lacks(character) ? U'\uFFFD' : character);
    }
    text.remove_prefix(valid);
    if (text.empty()) break;
    kept += kReplacementCharacter;
    text.remove_prefix(1);
  }
  return kept;
}

std::optional<LeftOutUnit> leftOutFor(const ExchangeUnit& unit, LacksCharacter lacks) {
  const std::optional<char32_t> lacking = firstLackingOf(unit, lacks);
  if (!lacking) return std::nullopt;
  const bool isBroken = *lacking == 0xFFFD && !lacks(*lacking);
  return LeftOutUnit{unit.table, unit.key,
                     isBroken ? "It holds half of a surrogate pair, which the format cannot carry."
                              : "It holds " + nameOfCharacter(*lacking) + ", which the format cannot carry."};
}

}  // namespace glossmill
