#pragma once

#include <random>
#include <set>
#include <string>
#include <utility>

#include "exchange/ExchangeUnit.h"
#include "text/Utf8.h"

namespace glossmill {

/// Texts of all of Unicode but surrogates, with what formats care about in them far more often than chance would have
/// it.
class RandomTexts {
 public:
  explicit RandomTexts(unsigned seed) : m_random(seed) {}

  std::size_t below(std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(m_random); }

  std::string text(std::size_t most) {
    std::string made;
    for (std::size_t left = below(most + 1); left > 0; --left) made += piece();
    return made;
  }

 private:
  std::string piece() {
    constexpr const char* kPieces[] = {
        "\"",  "\\", "\n", "\r",  "\r\n", "\t",     "'",     "=",    "+",  "-",    "@",      ",",      ";",
        "<",   ">",  "&",  "]]>", "%@",   "%ld",    "&#10;", "<!--", "#",  "\\n",  " ",      "  ",     ":",
        "%3A", "%",  "a",  "Ä",   "語",   "\u2028", "🚢",     "---",  "\a", "\x7F", "\u0085", "\uFEFF", "\uFFFF"};
    if (below(3) != 0) return kPieces[below(std::size(kPieces))];
    std::string made;
    char32_t character = static_cast<char32_t>(1 + below(0x10FFFF));
    if (character >= 0xD800 && character <= 0xDFFF) character = U'x';
    appendUtf8(made, character);
    return made;
  }

  std::mt19937 m_random;
};

/// A document in French with random units, no table and key of which stands there twice.
inline ExchangeDocument randomDocument(unsigned seed, bool hasTables = true) {
  RandomTexts random(seed);
  ExchangeDocument document;
  document.project = random.text(5);
  document.sourceLanguage = "en";
  document.languages = {"fr"};
  std::set<std::pair<std::string, std::string>> taken;
  for (std::size_t left = random.below(30); left > 0; --left) {
    ExchangeUnit unit;
    unit.number = static_cast<std::int64_t>(left);
    if (hasTables) unit.table = "app" + std::to_string(random.below(3)) + "/Local:i%ze.d";
    unit.file = hasTables ? unit.table.substr(0, 5) + "en.lproj/Local:i%ze.d.strings" : "en.lproj/Localizable.strings";
    unit.key = random.text(8);
    if (!taken.emplace(unit.table, unit.key).second) continue;
    unit.source = random.text(8);
    unit.comment = random.text(8);
    if (random.below(2) == 0) unit.places = {random.text(4) + ":" + std::to_string(random.below(99))};
    if (random.below(4) != 0) unit.texts = {{0, random.text(12)}};
    unit.isFormat = false;
    document.units.push_back(std::move(unit));
  }
  return document;
}

}  // namespace glossmill
