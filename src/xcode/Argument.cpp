#include "xcode/Argument.h"

namespace glossmill {

namespace {

using Kind = Argument::Kind;

bool isNothing(std::string_view word) {
  return word == "nil" || word == "NULL" || word == "Nil" || word == "nullptr" || word == "0";
}

std::string_view spelling(const SourceToken& token, std::string_view text) {
  return text.substr(token.begin, token.end - token.begin);
}

}  // namespace

void ArgumentShape::take(const SourceToken& token, std::string_view text, SourceLanguage language) {
  if (m_argument.begin == m_argument.end) m_argument.begin = token.begin;
  m_argument.end = token.end;
  const bool isRest = token.kind == SourceToken::Kind::LiteralRest;
  if (m_interpolations > 0 && !isRest && token.kind != SourceToken::Kind::Interpolation) return;
  switch (token.kind) {
    case SourceToken::Kind::Literal:
    case SourceToken::Kind::BrokenLiteral:
      return takeString(token, language);
    case SourceToken::Kind::Interpolation:
    case SourceToken::Kind::LiteralRest:
      return takeInterpolation(token, text);
    case SourceToken::Kind::Word:
      return takeWord(token, text);
    case SourceToken::Kind::Mark:
      return takeMark(text[token.begin]);
    default:
      m_argument.kind = Kind::Other;
  }
}

/// Only the C family joins strings that stand side by side.
void ArgumentShape::takeString(const SourceToken& token, SourceLanguage language) {
  dropCast();
  Kind& kind = m_argument.kind;
  const bool isFirst = kind == Kind::Missing;
  const bool joins = kind == Kind::Literal && language == SourceLanguage::CFamily;
  if (m_closed || m_cfstr || (!isFirst && !joins)) {
    kind = Kind::Other;
    return;
  }
  kind = token.kind == SourceToken::Kind::Literal ? Kind::Literal : Kind::BrokenLiteral;
  if (isFirst) m_stringBegin = token.begin;
  m_stringEnd = token.end;
  m_at = false;
}

void ArgumentShape::takeInterpolation(const SourceToken& token, std::string_view text) {
  const bool closes = text[token.begin] == ')';
  const bool opens = token.kind == SourceToken::Kind::Interpolation;
  if (closes && m_interpolations > 0) --m_interpolations;
  if (!closes && m_interpolations == 0) {
    m_argument.kind = m_argument.kind == Kind::Missing ? Kind::Interpolated : Kind::Other;
  }
  if (opens) ++m_interpolations;
}

void ArgumentShape::takeWord(const SourceToken& token, std::string_view text) {
  const std::string_view word = spelling(token, text);
  Kind& kind = m_argument.kind;
  dropCast();
  if (kind == Kind::Missing && !m_cfstr && !m_closed) {
    m_cfstr = word == "CFSTR";
    if (m_cfstr) return;
    kind = Kind::Word;
    m_stringBegin = token.begin;
    m_stringEnd = token.end;
  } else {
    const bool declares = (kind == Kind::Word || kind == Kind::Declaration) && !m_closed;
    kind = declares ? Kind::Declaration : Kind::Other;
  }
}

void ArgumentShape::takeMark(char mark) {
  Kind& kind = m_argument.kind;
  if (mark == '(') {
    openParenthesis();
  } else if (mark == ')') {
    closeParenthesis();
  } else if (mark == '@' && !m_at && (kind == Kind::Missing || kind == Kind::Literal || m_closed)) {
    dropCast();
    m_at = true;
  } else if (mark == '*' && (kind == Kind::Word || kind == Kind::Declaration) && !m_closed) {
    kind = Kind::Declaration;
  } else {
    kind = Kind::Other;
  }
}

void ArgumentShape::openParenthesis() {
  dropCast();
  if (m_argument.kind != Kind::Missing || m_at) m_argument.kind = Kind::Other;
  ++m_parentheses;
  m_cfstr = false;
}

void ArgumentShape::closeParenthesis() {
  if (m_argument.kind == Kind::Missing || m_parentheses == 0 || m_cfstr || m_at) m_argument.kind = Kind::Other;
  if (m_parentheses > 0) --m_parentheses;
  m_closed = true;
}

/// What stood in parentheses was no argument but the type of the one that follows.
void ArgumentShape::dropCast() {
  const bool isType = m_argument.kind == Kind::Word || m_argument.kind == Kind::Declaration;
  if (!m_closed || !isType) return;
  m_argument.kind = Kind::Missing;
  m_closed = false;
}

bool ArgumentShape::takeLabel() {
  const bool isLabel =
      m_argument.kind == Kind::Word && m_argument.labelBegin == m_argument.labelEnd && !m_closed && m_parentheses == 0;
  if (!isLabel) return false;
  Argument labelled;
  labelled.labelBegin = m_stringBegin;
  labelled.labelEnd = m_stringEnd;
  *this = ArgumentShape();
  m_argument = labelled;
  return true;
}

Argument ArgumentShape::finish(std::string_view text) const {
  Argument argument = m_argument;
  const bool isString = argument.kind == Kind::Literal || argument.kind == Kind::BrokenLiteral;
  if (m_parentheses > 0 || m_cfstr || (m_at && argument.kind != Kind::Word)) argument.kind = Kind::Other;
  if (argument.kind != Kind::Word && !isString) return argument;
  argument.begin = m_stringBegin;
  argument.end = m_stringEnd;
  const bool isNil = isNothing(text.substr(argument.begin, argument.end - argument.begin));
  if (argument.kind == Kind::Word && isNil && !m_at) argument.kind = Kind::Nothing;
  return argument;
}

}  // namespace glossmill
