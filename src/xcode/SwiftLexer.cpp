#include "xcode/SwiftLexer.h"

#include <algorithm>

#include "text/ByteSearch.h"
#include "xcode/AnyByteSearch.h"
#include "xcode/SourceText.h"
#include "xcode/SwiftPieces.h"

namespace glossmill {

SwiftLexer::Reached SwiftLexer::skipTo(std::size_t place) {
  const std::string_view before = m_text.substr(0, place);
  while (m_at < place) {
    const std::size_t from = m_at;
    m_at = m_open.empty() ? findEither(before, '"', '/', from) : findAnyOf<'"', '/', '(', ')'>(before, from);
    if (m_at < before.size()) skipPiece(from);
  }
  return m_at == place ? Reached::Code : Reached::Beyond;
}

void SwiftLexer::skipPiece(std::size_t from) {
  switch (m_text[m_at]) {
    case '"':
      readString(m_at, hashesBefore(m_at, from));
      return;
    case '/':
      skipSlash(from);
      return;
    default:
      takeMark();
  }
}

void SwiftLexer::skipSlash(std::size_t from) {
  if (skipComment()) return;
  const std::size_t hashes = hashesBefore(m_at, from);
  if (hashes > 0) {
    m_at = hashedExpressionEnd(m_text, m_at, hashes);
  } else {
    takeSlash();
  }
}

/// From any byte; says whether it began a comment.
bool SwiftLexer::skipComment() {
  const std::string_view opening = m_text.substr(m_at, 2);
  if (opening == "//") {
    m_at = findEither(m_text, '\n', '\r', m_at);
  } else if (opening == "/*") {
    m_at = nestedCommentEnd(m_text, m_at);
  } else {
    return false;
  }
  return true;
}

void SwiftLexer::skipSpace() {
  while (m_at < m_text.size()) {
    if (isBlank(m_text[m_at]) || isLineEnd(m_text[m_at])) {
      ++m_at;
    } else if (!skipComment()) {
      return;
    }
  }
}

SourceToken SwiftLexer::next() {
  skipSpace();
  if (m_at == m_text.size()) return take(SourceToken::Kind::End, m_at);
  const std::size_t begin = m_at;
  const char byte = m_text[m_at];
  if (isWordByte(byte)) return take(SourceToken::Kind::Word, plainWordEnd(m_text, m_at));
  if (byte == '"') {
    const SourceToken::Kind kind = readString(m_at, 0);
    return {kind, begin, m_at};
  }
  if (byte == '#') return takeHashes();
  if (byte == '/') return takeSlash();
  return takeMark();
}

SourceToken SwiftLexer::take(SourceToken::Kind kind, std::size_t end) {
  const SourceToken token{kind, m_at, end};
  m_at = end;
  return token;
}

/// A string or regular expression with hashes in front of it, or the hashes alone.
SourceToken SwiftLexer::takeHashes() {
  const std::size_t begin = m_at;
  std::size_t end = begin;
  while (end < m_text.size() && m_text[end] == '#') ++end;
  const std::string_view behind = m_text.substr(end, 2);
  if (behind.starts_with('"')) {
    const SourceToken::Kind kind = readString(end, end - begin);
    return {kind, begin, m_at};
  }
  const bool isExpression = behind.starts_with('/') && behind != "//" && behind != "/*";
  if (!isExpression) return take(SourceToken::Kind::Mark, end);
  return take(SourceToken::Kind::Character, hashedExpressionEnd(m_text, end, end - begin));
}

/// A regular expression, or the "/" alone.
SourceToken SwiftLexer::takeSlash() {
  const std::size_t end = regularExpressionEnd(m_text, m_at);
  if (end == m_at) return take(SourceToken::Kind::Mark, m_at + 1);
  return take(SourceToken::Kind::Character, end);
}

/// Any mark; a parenthesis that closes an interpolation comes with what follows it in the string.
SourceToken SwiftLexer::takeMark() {
  const std::size_t begin = m_at++;
  if (m_open.empty()) return {SourceToken::Kind::Mark, begin, m_at};
  if (m_text[begin] == '(') ++m_open.back().parentheses;
  if (m_text[begin] != ')' || !closeParenthesis()) return {SourceToken::Kind::Mark, begin, m_at};
  const SourceToken::Kind kind = readRest();
  return {kind, begin, m_at};
}

/// Says whether the interpolation is over.
bool SwiftLexer::closeParenthesis() {
  return --m_open.back().parentheses == 0;
}

SourceToken::Kind SwiftLexer::readString(std::size_t quote, std::size_t hashes) {
  const OpenString string{hashes, beginsLines(quote, hashes), 1};
  m_at = quote + (string.hasLines ? 3 : 1);
  const SourceToken::Kind kind = readPiece(string);
  if (kind == SourceToken::Kind::Interpolation) m_open.push_back(string);
  return kind;
}

/// From behind an interpolation.
SourceToken::Kind SwiftLexer::readRest() {
  const SourceToken::Kind kind = readPiece(m_open.back());
  if (kind == SourceToken::Kind::Interpolation) {
    m_open.back().parentheses = 1;
    return kind;
  }
  m_open.pop_back();
  return SourceToken::Kind::LiteralRest;
}

SourceToken::Kind SwiftLexer::readPiece(const OpenString& string) {
  while (m_at < m_text.size()) {
    const char byte = m_text[m_at];
    if (isLineEnd(byte) && !string.hasLines) break;
    if (byte == '"') {
      const std::size_t closing = closingLength(m_at, string);
      m_at += std::max<std::size_t>(closing, 1);
      if (closing > 0) return SourceToken::Kind::Literal;
    } else if (byte == '\\' && hasHashes(m_at + 1, string.hashes)) {
      m_at += 1 + string.hashes;
      if (m_at == m_text.size() || isLineEnd(m_text[m_at])) continue;
      if (m_text[m_at++] == '(') return SourceToken::Kind::Interpolation;
    } else {
      ++m_at;
    }
  }
  return SourceToken::Kind::BrokenLiteral;
}

/// Three quotes begin a string of several lines; behind hashes only when the string does not end on the same line.
bool SwiftLexer::beginsLines(std::size_t quote, std::size_t hashes) const {
  if (m_text.substr(quote, 3) != "\"\"\"") return false;
  if (hashes == 0) return true;
  for (std::size_t at = quote + 2; at < m_text.size() && !isLineEnd(m_text[at]); ++at) {
    if (m_text[at] == '"' && hasHashes(at + 1, hashes)) return false;
  }
  return true;
}

/// The length of the quotes and hashes at `at` when they end the string, else 0.
std::size_t SwiftLexer::closingLength(std::size_t at, const OpenString& string) const {
  const std::size_t quotes = string.hasLines ? 3 : 1;
  if (string.hasLines && m_text.substr(at, 3) != "\"\"\"") return 0;
  return hasHashes(at + quotes, string.hashes) ? quotes + string.hashes : 0;
}

bool SwiftLexer::hasHashes(std::size_t at, std::size_t count) const {
  if (count == 0) return true;
  if (at + count > m_text.size()) return false;
  for (std::size_t hash = at; hash < at + count; ++hash) {
    if (m_text[hash] != '#') return false;
  }
  return true;
}

std::size_t SwiftLexer::hashesBefore(std::size_t at, std::size_t from) const {
  std::size_t begin = at;
  while (begin > from && m_text[begin - 1] == '#') --begin;
  return at - begin;
}

}  // namespace glossmill
