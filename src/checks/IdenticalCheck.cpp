#include "checks/IdenticalCheck.h"

#include <algorithm>

#include "checks/Characters.h"

namespace glossmill {

namespace {

bool isLower(char32_t character) {
  return (character >= U'a' && character <= U'z') || character >= 0xC0;
}

bool isUpper(char32_t character) {
  return character >= U'A' && character <= U'Z';
}

/// Letters are ASCII's, and everything behind Latin-1's signs but white space.
bool isLetter(char32_t character) {
  return (isLower(character) || isUpper(character)) && !isWhiteSpace(character);
}

/// Words of two letters or more that are no abbreviations.
struct WordCounts {
  std::size_t all = 0;
  std::size_t small = 0;  ///< without capitals
};

/// Counts the words of a text outside of its specifiers. Names of variables are no words.
class WordCounter {
 public:
  explicit WordCounter(std::string_view text) : m_format(readFormat(text)) {}

  WordCounts count(const std::vector<Character>& characters) {
    for (const Character& character : characters) take(character);
    endWord();
    return m_counts;
  }

 private:
  void take(const Character& character) {
    const bool isName = character.value == U'_' || character.value == U'$';
    if (isName) m_isVariable = true;
    if (isName || (m_isVariable && character.value == U'(')) return;
    if (!isLetter(character.value) || isInSpecifier(character.range.begin)) return endWord();
    ++(isUpper(character.value) ? m_capitals : m_smallLetters);
  }

  void endWord() {
    const bool isWord = m_smallLetters + m_capitals > 1 && m_smallLetters > 0 && !m_isVariable;
    if (isWord) ++m_counts.all;
    if (isWord && m_capitals == 0) ++m_counts.small;
    m_smallLetters = m_capitals = 0;
    m_isVariable = false;
  }

  bool isInSpecifier(std::size_t place) const {
    return std::any_of(m_format.uses.begin(), m_format.uses.end(), [place](const FormatArgumentUse& use) {
      return place >= use.range.begin && place < use.range.begin + use.range.length;
    });
  }

  FormatReading m_format;
  WordCounts m_counts;
  std::size_t m_smallLetters = 0;
  std::size_t m_capitals = 0;
  bool m_isVariable = false;
};

bool isSentence(const WordCounts& words, std::string_view text) {
  constexpr std::string_view kCopyright = "\u00A9";
  return words.all >= 4 && words.small >= 2 && text.find(kCopyright) == text.npos;
}

bool isTranslatedElsewhere(const CheckedText& text, const EachTranslation& translations) {
  if (!translations) return true;
  std::size_t same = 0;
  std::size_t others = 0;
  translations([&](std::string_view language, std::string_view translation) {
    const std::string_view base = baseOfCode(language);
    if (translation.empty() || base == baseOfCode(text.baseLanguage) || base == baseOfCode(text.language)) return;
    ++(translation == text.source ? same : others);
  });
  return others > 1 && others > same;
}

}  // namespace

std::vector<Finding> identicalFindings(const CheckedText& text, const EachTranslation& translations) {
  if (text.translation != text.source || baseOfCode(text.language) == baseOfCode(text.baseLanguage)) return {};
  if (isXcodePlaceholder(text.source)) return {};
  const WordCounts words = WordCounter(text.source).count(charactersOf(text.source, text.form));
  if (words.all < 2 || !(isSentence(words, text.source) || isTranslatedElsewhere(text, translations))) return {};
  return {{Check::Identical, Severity::Info, FindingKind::SameAsSource, {}, {}, {}, {0, text.translation.size()}}};
}

}  // namespace glossmill
