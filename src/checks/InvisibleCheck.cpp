#include "checks/InvisibleCheck.h"

#include <algorithm>
#include <cstdio>

#include "checks/Characters.h"

namespace glossmill {

namespace {

bool isControl(char32_t character) {
  const bool isC0 = character < 0x20 && character != U'\t' && !isLineBreak(character);
  return isC0 || (character >= 0x7F && character <= 0x9F);
}

bool beginsEmbedding(char32_t character) {
  return character == 0x202A || character == 0x202B || character == 0x202D || character == 0x202E;
}

bool beginsIsolate(char32_t character) {
  return character >= 0x2066 && character <= 0x2068;
}

constexpr char32_t kEndOfEmbedding = 0x202C;
constexpr char32_t kEndOfIsolate = 0x2069;

/// "U+202E"
std::string codeOf(char32_t character) {
  char code[16];
  std::snprintf(code, sizeof code, "U+%04lX", static_cast<unsigned long>(character));
  return code;
}

/// Everything that is neither ASCII nor white space nor among the marks of Latin-1 and of U+2000 to U+206F passes for a
/// letter.
bool isWordLetter(char32_t character) {
  const char32_t small = character | 0x20;
  const bool isMark = character >= 0x2000 && character <= 0x206F;
  return (small >= U'a' && small <= U'z') || (character >= 0xC0 && !isMark && !isWhiteSpace(character));
}

/// A no-break space beside a mark, a number or a specifier is set there by design in many languages, and so is one
/// behind a word of one letter. Between two other words it only looks like a blank.
bool standsBetweenWords(const std::vector<Character>& characters, std::size_t at) {
  constexpr std::u32string_view kOpening = U"([{";
  if (at < 2 || at + 1 == characters.size()) return false;
  const char32_t next = characters[at + 1].value;
  const bool beginsWord = isWordLetter(next) || kOpening.find(next) != std::u32string_view::npos;
  return beginsWord && isWordLetter(characters[at - 1].value) && isWordLetter(characters[at - 2].value);
}

bool endsSpecifier(const FormatReading& format, std::size_t place) {
  return std::any_of(format.uses.begin(), format.uses.end(),
                     [place](const FormatArgumentUse& use) { return use.range.begin + use.range.length == place; });
}

/// A glance that is enough for nearly all texts: no byte is a control character's, nor begins one of the characters
/// that are looked for. Those lie below U+00A1, at U+2000 to U+207F, and at U+FFFD.
bool isPlain(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return value < 0x20 || value == 0x7F || value == 0xC2 || value == 0xE2 || value == 0xEF;
  });
}

/// Looks through one translation from its front to its end.
class InvisibleSearch {
 public:
  explicit InvisibleSearch(const CheckedText& text)
      : m_text(text.translation), m_characters(charactersOf(text.translation, text.form)), m_source(text.source) {}

  std::vector<Finding> findings() {
    for (std::size_t at = 0; at < m_characters.size(); ++at) look(at);
    for (const Character& open : m_open) add(FindingKind::DirectionLeftOpen, open);
    return std::move(m_findings);
  }

 private:
  bool sourceHasPlainBlanksOnly() const {
    const bool hasNoBreakSpace = m_source.find("\u00A0") != m_source.npos || m_source.find("\u202F") != m_source.npos;
    return m_source.find(' ') != m_source.npos && !hasNoBreakSpace;
  }

  void look(std::size_t at) {
    const Character& character = m_characters[at];
    if (isControl(character.value)) add(FindingKind::ControlCharacter, character);
    if (character.value == 0xFFFD) add(FindingKind::ReplacementCharacter, character);
    if (isNoBreakSpace(character.value) && standsBetweenWords(m_characters, at) && sourceHasPlainBlanksOnly() &&
        !endsSpecifier(readFormat(m_text), character.range.begin)) {
      add(FindingKind::NoBreakSpace, character);
    }
    followDirections(character);
  }

  void followDirections(const Character& character) {
    if (beginsEmbedding(character.value) || beginsIsolate(character.value)) m_open.push_back(character);
    const bool endsEmbedding = character.value == kEndOfEmbedding;
    if (!endsEmbedding && character.value != kEndOfIsolate) return;
    const auto begin = std::find_if(m_open.rbegin(), m_open.rend(), [endsEmbedding](const Character& open) {
      return endsEmbedding ? beginsEmbedding(open.value) : beginsIsolate(open.value);
    });
    if (begin != m_open.rend()) m_open.erase(std::next(begin).base());
  }

  void add(FindingKind kind, const Character& character) {
    m_findings.push_back({Check::Invisible, Severity::Warning, kind, codeOf(character.value), {}, {}, character.range});
  }

  std::string_view m_text;
  std::vector<Character> m_characters;
  std::string_view m_source;
  std::vector<Character> m_open;  ///< beginnings of directions
  std::vector<Finding> m_findings;
};

}  // namespace

std::vector<Finding> invisibleFindings(const CheckedText& text) {
  if (isPlain(text.translation)) return {};
  return InvisibleSearch(text).findings();
}

}  // namespace glossmill
