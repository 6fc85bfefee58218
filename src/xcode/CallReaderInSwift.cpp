#include <algorithm>

#include "xcode/CallInterpreter.h"
#include "xcode/CallPlaces.h"
#include "xcode/CallReader.h"
#include "xcode/SourceText.h"
#include "xcode/SwiftLexer.h"
#include "xcode/SwiftLiteral.h"

namespace glossmill {

namespace {

constexpr std::string_view kFunc = "func";

/// Where the letters of "func" stand when they and blanks are all that is in front of the word at `at`; else `at`.
std::size_t funcBefore(std::string_view text, std::size_t at) {
  std::size_t end = at;
  while (end > 0 && (isBlank(text[end - 1]) || isLineEnd(text[end - 1]))) --end;
  if (end == at || !text.substr(0, end).ends_with(kFunc)) return at;
  const std::size_t begin = end - kFunc.size();
  return begin > 0 && isWordByte(text[begin - 1]) ? at : begin;
}

/// A method stands behind its dot.
bool isMethod(std::string_view text, std::size_t at) {
  return at > 0 && text[at - 1] == '.';
}

class ReaderInSwift {
 public:
  ReaderInSwift(std::string_view text, const std::vector<CallPlace>& places)
      : m_text(text), m_places(places), m_lexer(text), m_interpreter(text, swiftLiteralValue), m_parser(makeParser()) {}

  SourceCalls read() {
    while (m_next < m_places.size()) {
      skipToName(m_places[m_next].begin);
      passPlaces(m_lexer.position());
    }
    return m_interpreter.finish();
  }

 private:
  CallParser makeParser() {
    return {m_text, SourceLanguage::Swift,
            [this](const ParsedCall& call) { m_interpreter.take(call, *m_places[call.routine].routine, nullptr); }};
  }

  /// A routine is not called where it is declared, behind "func".
  void skipToName(std::size_t name) {
    const std::size_t func = funcBefore(m_text, name);
    const bool isDeclared = func != name && m_lexer.skipTo(func) == SwiftLexer::Reached::Code;
    if (isDeclared || m_lexer.skipTo(name) == SwiftLexer::Reached::Code) readCalls();
  }

  /// From a name, or the "func" in front of it, until nothing is open.
  void readCalls() {
    SourceToken last;
    do {
      const SourceToken token = m_lexer.next();
      if (token.kind == SourceToken::Kind::End) return m_parser.finish();
      passPlaces(token.begin);
      const bool isName = m_next < m_places.size() && m_places[m_next].begin == token.begin;
      if (isName && mayBeCalled(m_places[m_next], last)) {
        m_parser.takeName(token, {m_next, m_places[m_next].routine->form});
      } else {
        m_parser.take(token);
      }
      if (isName) ++m_next;
      last = token;
    } while (!m_parser.isIdle() || spelling(last) == kFunc);
  }

  bool mayBeCalled(const CallPlace& place, const SourceToken& last) const {
    if (place.routine->form == CallForm::Method) return isMethod(m_text, place.begin);
    return spelling(last) != kFunc || funcBefore(m_text, place.begin) != last.begin;
  }

  std::string_view spelling(const SourceToken& token) const {
    return m_text.substr(token.begin, token.end - token.begin);
  }

  void passPlaces(std::size_t end) {
    while (m_next < m_places.size() && m_places[m_next].begin < end) ++m_next;
  }

  std::string_view m_text;
  const std::vector<CallPlace>& m_places;
  std::size_t m_next = 0;  ///< in m_places
  SwiftLexer m_lexer;
  CallInterpreter m_interpreter;
  CallParser m_parser;
};

}  // namespace

SourceCalls readCallsInSwift(std::string_view text, const RoutineTable& routines) {
  const std::vector<CallPlace> places = callPlacesInSwift(text, routines);
  if (places.empty()) return {};
  return ReaderInSwift(text, places).read();
}

}  // namespace glossmill
