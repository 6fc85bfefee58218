#include "checks/WhiteSpaceCheck.h"

#include <algorithm>
#include <string>

#include "checks/Characters.h"

namespace glossmill {

namespace {

using Characters = std::vector<Character>;

/// A text in three parts: places in its characters.
struct Edges {
  std::size_t bodyBegin = 0;
  std::size_t bodyEnd = 0;
};

Edges edgesOf(const Characters& characters) {
  Edges edges{0, characters.size()};
  while (edges.bodyBegin < edges.bodyEnd && isWhiteSpace(characters[edges.bodyBegin].value)) ++edges.bodyBegin;
  while (edges.bodyEnd > edges.bodyBegin && isWhiteSpace(characters[edges.bodyEnd - 1].value)) --edges.bodyEnd;
  return edges;
}

/// A line break of two characters counts once.
std::size_t lineBreaks(const Characters& characters, std::size_t begin, std::size_t end) {
  std::size_t count = 0;
  for (std::size_t at = begin; at < end; ++at) {
    const bool isSecond = at > begin && characters[at].value == U'\n' && characters[at - 1].value == U'\r';
    if (isLineBreak(characters[at].value) && !isSecond) ++count;
  }
  return count;
}

/// White space with its differences of no weight taken out: line breaks, tabs and blanks remain.
std::u32string plainSpace(const Characters& characters, std::size_t begin, std::size_t end) {
  std::u32string space;
  for (std::size_t at = begin; at < end; ++at) {
    const char32_t value = characters[at].value;
    if (value == U'\n' && !space.empty() && characters[at - 1].value == U'\r') continue;
    space.push_back(isLineBreak(value) ? U'\n' : value == U'\t' ? U'\t' : U' ');
  }
  return space;
}

/// Its shape holds the blank that other scripts write behind the mark.
bool isFullWidthMark(char32_t character) {
  constexpr std::u32string_view kMarks = U"。、！？：；，．）」』】";
  return kMarks.find(character) != std::u32string_view::npos;
}

/// True when no character that begins with this byte is white space, and none is a full-width mark.
bool beginsBody(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value > ' ' && value != 0xC2 && value != 0xE2 && value != 0xE3 && value != 0xEF;
}

/// The first byte of the last character.
char lastBeginning(std::string_view text) {
  while (text.size() > 1 && (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80) text.remove_suffix(1);
  return text.back();
}

/// A raw text may spell a line break with a backslash; those of Unicode begin with this byte and 0x80.
bool mayBreakLine(std::string_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\n' || text[at] == '\r' || text[at] == '\\') return true;
    const bool mayBeSeparator = text[at] == '\xE2' && at + 2 < text.size() && text[at + 1] == '\x80';
    if (mayBeSeparator && (text[at + 2] == '\xA8' || text[at + 2] == '\xA9')) return true;
  }
  return false;
}

/// A glance that is enough for most texts: no white space at the ends, and no line break inside.
bool isOneBareLine(std::string_view text) {
  return beginsBody(text.front()) && beginsBody(lastBeginning(text)) && !mayBreakLine(text);
}

TextRange rangeOf(const Characters& characters, std::size_t begin, std::size_t end) {
  if (begin == end) return {};
  const std::size_t first = characters[begin].range.begin;
  const TextRange last = characters[end - 1].range;
  return {first, last.begin + last.length - first};
}

/// Compares the white space of two texts.
class WhiteSpaceComparison {
 public:
  explicit WhiteSpaceComparison(const CheckedText& text)
      : m_source(charactersOf(text.source, text.form)), m_translation(charactersOf(text.translation, text.form)) {}

  std::vector<Finding> findings() {
    const Edges source = edgesOf(m_source);
    const Edges translation = edgesOf(m_translation);
    if (source.bodyBegin == source.bodyEnd || translation.bodyBegin == translation.bodyEnd) return {};
    compareSpace(FindingKind::WhiteSpaceInFront, 0, source.bodyBegin, 0, translation.bodyBegin);
    if (lineBreaks(m_source, source.bodyBegin, source.bodyEnd) !=
        lineBreaks(m_translation, translation.bodyBegin, translation.bodyEnd)) {
      m_findings.push_back({Check::WhiteSpace, Severity::Warning, FindingKind::LineBreaks, {}, {}, {}, {}});
    }
    const bool bringsBlank = translation.bodyEnd == m_translation.size() &&
                             isFullWidthMark(m_translation.back().value) && source.bodyEnd + 1 == m_source.size();
    if (!bringsBlank) {
      compareSpace(FindingKind::WhiteSpaceBehind, source.bodyEnd, m_source.size(), translation.bodyEnd,
                   m_translation.size());
    }
    return std::move(m_findings);
  }

 private:
  void compareSpace(FindingKind kind, std::size_t sourceBegin, std::size_t sourceEnd, std::size_t translationBegin,
                    std::size_t translationEnd) {
    if (plainSpace(m_source, sourceBegin, sourceEnd) == plainSpace(m_translation, translationBegin, translationEnd)) {
      return;
    }
    m_findings.push_back({Check::WhiteSpace,
                          Severity::Warning,
                          kind,
                          {},
                          {},
                          rangeOf(m_source, sourceBegin, sourceEnd),
                          rangeOf(m_translation, translationBegin, translationEnd)});
  }

  Characters m_source;
  Characters m_translation;
  std::vector<Finding> m_findings;
};

}  // namespace

std::vector<Finding> whiteSpaceFindings(const CheckedText& text) {
  if (text.source.empty() || text.translation.empty()) return {};
  if (isOneBareLine(text.source) && isOneBareLine(text.translation)) return {};
  return WhiteSpaceComparison(text).findings();
}

}  // namespace glossmill
