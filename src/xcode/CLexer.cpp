#include "xcode/CLexer.h"

#include "xcode/AnyByteSearch.h"
#include "xcode/CPieces.h"
#include "xcode/SourceText.h"

namespace glossmill {

namespace {

/// The byte that decides whether "/" begins a comment; 0 at the end of the text.
char behindSlash(std::string_view text, std::size_t slash) {
  const std::size_t at = afterContinuations(text, slash + 1);
  return at < text.size() ? text[at] : '\0';
}

bool isStringPrefix(std::string_view word) {
  return word == "L" || word == "u" || word == "U" || word == "u8";
}

/// The next byte inside a directive that may end it or begin something in it.
std::size_t findDirectiveStop(std::string_view text, std::size_t at) {
  while (at < text.size()) {
    const char byte = text[at];
    if (byte == '\\' || byte == '"' || byte == '\'' || byte == '/' || isLineEnd(byte)) break;
    ++at;
  }
  return at;
}

}  // namespace

CLexer::Reached CLexer::skipTo(std::size_t place) {
  const std::string_view before = m_text.substr(0, place);
  while (m_at < place) {
    const std::size_t from = m_at;
    m_at = findAnyOf<'"', '\'', '/', '#'>(before, from);
    if (m_at == before.size()) break;
    const std::size_t piece = m_at;
    skipPiece(from);
    if (m_at > place && m_text[piece] == '#') {
      m_at = piece;
      return Reached::Directive;
    }
  }
  return m_at == place ? Reached::Code : Reached::Beyond;
}

void CLexer::skipPiece(std::size_t from) {
  switch (m_text[m_at]) {
    case '"':
      m_at = beginsRawString(m_at, from) ? rawStringEnd(m_text, m_at).end : quotedEnd(m_text, m_at).end;
      return;
    case '\'':
      if (!isDigitSeparator(m_at, from)) {
        m_at = quotedEnd(m_text, m_at).end;
        return;
      }
      m_separatorEnd = ++m_at;
      return;
    case '/':
      if (!skipComment()) ++m_at;
      return;
    default:
      m_at = beginsDirective(m_at) ? directiveEnd(m_at) : m_at + 1;
  }
}

bool CLexer::skipComment() {
  const char kind = behindSlash(m_text, m_at);
  if (kind == '/') m_at = lineCommentEnd(m_text, m_at);
  if (kind == '*') {
    m_commentBeganLine = beginsLine(m_at);
    m_at = blockCommentEnd(m_text, m_at);
    m_commentEnd = m_at;
  }
  return kind == '/' || kind == '*';
}

void CLexer::skipSpace() {
  while (m_at < m_text.size()) {
    const char byte = m_text[m_at];
    if (isBlank(byte) || isLineEnd(byte)) {
      ++m_at;
    } else if (const std::size_t length = continuationLength(m_text, m_at)) {
      m_at += length;
    } else if (byte != '/' || !skipComment()) {
      return;
    }
  }
}

SourceToken CLexer::next() {
  skipSpace();
  if (m_at == m_text.size()) return take(SourceToken::Kind::End, m_at);
  const char byte = m_text[m_at];
  if (isWordByte(byte)) return takeWord();
  if (byte == '"') return takeString(quotedEnd(m_text, m_at));
  if (byte == '\'') return take(SourceToken::Kind::Character, quotedEnd(m_text, m_at).end);
  if (byte == '#' && beginsDirective(m_at)) return take(SourceToken::Kind::Directive, directiveEnd(m_at));
  return take(SourceToken::Kind::Mark, m_at + 1);
}

SourceToken CLexer::take(SourceToken::Kind kind, std::size_t end) {
  const SourceToken token{kind, m_at, end};
  m_at = end;
  return token;
}

SourceToken CLexer::takeWord() {
  const std::size_t end = wordEnd();
  if (end < m_text.size() && m_text[end] == '"') {
    if (beginsRawString(end, m_at)) return takeString(rawStringEnd(m_text, end));
    if (isStringPrefix(m_text.substr(m_at, end - m_at))) return takeString(quotedEnd(m_text, end));
  }
  return take(SourceToken::Kind::Word, end);
}

SourceToken CLexer::takeString(const LiteralEnd& literal) {
  return take(literal.broken ? SourceToken::Kind::BrokenLiteral : SourceToken::Kind::Literal, literal.end);
}

/// Of the word or number at m_at.
std::size_t CLexer::wordEnd() {
  std::size_t end = plainWordEnd(m_text, m_at);
  while (end < m_text.size()) {
    std::size_t next = afterContinuations(m_text, end);
    if (isDigitSeparator(end, m_at)) next = m_separatorEnd = end + 1;
    if (next == end || next == m_text.size() || !isWordByte(m_text[next])) break;
    end = plainWordEnd(m_text, next);
  }
  return end;
}

bool CLexer::beginsDirective(std::size_t at) const {
  return m_directives == Directives::Tokens && beginsLine(at);
}

bool CLexer::beginsLine(std::size_t at) const {
  while (at > m_begin) {
    if (at == m_commentEnd) return m_commentBeganLine;
    const std::size_t continued = beforeContinuations(m_text, at, m_begin);
    if (continued == at && isLineEnd(m_text[at - 1])) return true;
    if (continued == at && !isBlank(m_text[at - 1])) return false;
    at = continued == at ? at - 1 : continued;
  }
  return true;
}

/// A quote inside a number, as in 1'000'000. Nothing in front of `from` is looked at, where a piece has ended.
bool CLexer::isDigitSeparator(std::size_t at, std::size_t from) const {
  if (m_text[at] != '\'' || at + 1 >= m_text.size() || !isWordByte(m_text[at + 1])) return false;
  std::size_t digits = at;
  while (digits > from && isWordByte(m_text[digits - 1])) --digits;
  return digits != at && (isDigit(m_text[digits]) || digits == m_separatorEnd);
}

bool CLexer::beginsRawString(std::size_t quote, std::size_t from) const {
  const std::size_t begin = rawStringBegin(m_text, quote, from);
  return begin != quote && begin != m_separatorEnd;
}

std::size_t CLexer::directiveEnd(std::size_t at) const {
  CLexer inside(m_text, at + 1, Directives::Marks);
  while (inside.m_at < m_text.size()) {
    const std::size_t from = inside.m_at;
    inside.m_at = findDirectiveStop(m_text, from);
    if (inside.m_at == m_text.size() || isLineEnd(m_text[inside.m_at])) break;
    if (m_text[inside.m_at] == '\\') {
      const std::size_t behind = afterContinuations(m_text, inside.m_at);
      inside.m_at = behind != inside.m_at ? behind : behind + 1;
    } else {
      inside.skipPiece(from);
    }
  }
  return inside.m_at;
}

}  // namespace glossmill
