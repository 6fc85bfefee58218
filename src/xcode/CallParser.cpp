#include "xcode/CallParser.h"

#include <iterator>

namespace glossmill {

namespace {

constexpr std::size_t kMostArguments = 128;
constexpr std::string_view kSelector[] = {"localizedStringForKey", "value", "table"};

char closingOf(char opening) {
  if (opening == '(') return ')';
  return opening == '[' ? ']' : '}';
}

}  // namespace

void CallParser::takeName(const SourceToken& token, const CallName& name) {
  take(token);
  m_hasName = true;
  m_name = name;
}

void CallParser::take(const SourceToken& token) {
  const bool hadName = m_hasName;
  m_hasName = false;
  if (!hadName || !openCall(token)) {
    while (!m_calls.empty() && !takeInside(token)) {
    }
  }
  m_last = token;
}

/// Says whether the token makes a call of the name before it.
bool CallParser::openCall(const SourceToken& token) {
  const char wanted = m_name.form == CallForm::Message ? ':' : '(';
  if (token.kind != SourceToken::Kind::Mark || m_text[token.begin] != wanted) return false;
  if (!m_calls.empty()) addToArgument(token);
  OpenCall call;
  call.routine = m_name.routine;
  call.form = m_name.form;
  call.at = m_last.begin;
  call.firstBracket = m_brackets.size();
  call.firstArgument = m_arguments.size();
  m_calls.push_back(call);
  return true;
}

bool CallParser::takeInside(const SourceToken& token) {
  const char first = m_text[token.begin];
  switch (token.kind) {
    case SourceToken::Kind::Interpolation:
      if (first == ')' && !takeClosing(token, ')')) return false;
      return takeOpening(token, '(');
    case SourceToken::Kind::LiteralRest:
      return takeClosing(token, ')');
    case SourceToken::Kind::Mark:
      break;
    default:
      addToArgument(token);
      return true;
  }
  if (first == '(' || first == '[' || first == '{') return takeOpening(token, first);
  if (first == ')' || first == ']' || first == '}') return takeClosing(token, first);
  if (first == ';') {
    takeSemicolon();
    return true;
  }
  if (isAtBase()) return takeAtBase(token, first);
  addToArgument(token);
  return true;
}

bool CallParser::takeOpening(const SourceToken& token, char bracket) {
  const bool isBody = bracket == '{' && m_last.kind == SourceToken::Kind::Word;
  if (isBody && isAtBase() && m_calls.back().form == CallForm::Message) {
    dropCall();
    return false;
  }
  addToArgument(token);
  m_brackets.push_back(bracket);
  return true;
}

/// Brackets that were never closed are forgotten with the one around them.
bool CallParser::takeClosing(const SourceToken& token, char bracket) {
  while (!isAtBase()) {
    const char opening = m_brackets.back();
    m_brackets.pop_back();
    if (closingOf(opening) != bracket) continue;
    addToArgument(token);
    return true;
  }
  if (m_calls.back().form == CallForm::Message) return endMessage(bracket);
  endCall(bracket == ')');
  if (bracket == ')' && !m_calls.empty()) m_calls.back().argument.extendTo(token.end);
  return bracket == ')';
}

/// A mark that separates arguments, or any other, which belongs to one.
bool CallParser::takeAtBase(const SourceToken& token, char mark) {
  OpenCall& call = m_calls.back();
  if (mark == ':') return takeColon(token);
  if (mark == ',' && call.form == CallForm::Message) {
    dropCall();
    return false;
  }
  if (mark == ',') {
    finishArgument();
    return true;
  }
  if (mark == '?') ++call.conditions;
  addToArgument(token);
  return true;
}

bool CallParser::takeColon(const SourceToken& token) {
  OpenCall& call = m_calls.back();
  if (call.form == CallForm::Message && call.conditions == 0) return takeSelector();
  if (call.conditions > 0) --call.conditions;
  const bool isLabel = m_language == SourceLanguage::Swift && call.argument.takeLabel();
  if (!isLabel) addToArgument(token);
  return true;
}

/// The word before the ":" is no part of the argument but of the message's name, which must go on as it began.
bool CallParser::takeSelector() {
  OpenCall& call = m_calls.back();
  const bool goesOn = m_last.kind == SourceToken::Kind::Word && call.selectors < std::size(kSelector) &&
                      m_text.substr(m_last.begin, m_last.end - m_last.begin) == kSelector[call.selectors];
  if (!goesOn) {
    dropCall();
    return false;
  }
  ++call.selectors;
  call.argument = m_beforeLast;
  finishArgument();
  return true;
}

/// The "]" belongs to whatever stands around the message.
bool CallParser::endMessage(char closing) {
  if (closing == ']' && m_calls.back().selectors == std::size(kSelector)) {
    endCall(true);
  } else {
    dropCall();
  }
  return false;
}

/// Ends a statement, and so all calls but those around a block that it stands in.
void CallParser::takeSemicolon() {
  while (!m_calls.empty()) {
    if (isAtBase()) {
      endCall(false);
    } else if (m_brackets.back() == '{') {
      return;
    } else {
      m_brackets.pop_back();
    }
  }
}

void CallParser::finish() {
  m_hasName = false;
  while (!m_calls.empty()) endCall(false);
}

void CallParser::addToArgument(const SourceToken& token) {
  ArgumentShape& argument = m_calls.back().argument;
  m_beforeLast = argument;
  argument.take(token, m_text, m_language);
}

void CallParser::finishArgument() {
  OpenCall& call = m_calls.back();
  if (m_arguments.size() - call.firstArgument < kMostArguments) m_arguments.push_back(call.argument.finish(m_text));
  call.argument = ArgumentShape();
}

/// A message is only known to be one when it is closed.
void CallParser::endCall(bool closed) {
  const bool counts = closed || m_calls.back().form != CallForm::Message;
  if (counts) {
    finishArgument();
    const OpenCall& call = m_calls.back();
    m_listener({call.routine, call.at, closed, std::span(m_arguments).subspan(call.firstArgument)});
  }
  dropCall();
}

void CallParser::dropCall() {
  m_arguments.resize(m_calls.back().firstArgument);
  m_brackets.resize(m_calls.back().firstBracket);
  m_calls.pop_back();
}

}  // namespace glossmill
