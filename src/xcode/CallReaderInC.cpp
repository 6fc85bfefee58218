#include <algorithm>
#include <unordered_set>

#include "xcode/CLexer.h"
#include "xcode/CLiteral.h"
#include "xcode/CallInterpreter.h"
#include "xcode/CallPlaces.h"
#include "xcode/CallReader.h"
#include "xcode/MacroRoutines.h"

namespace glossmill {

namespace {

/// Goes from name to name and, where one is a call's, token by token to the end of the call.
class ReaderInC {
 public:
  ReaderInC(std::string_view text, const std::vector<CallPlace>& places)
      : m_text(text), m_places(places), m_interpreter(text, cLiteralValue) {}

  SourceCalls read() {
    readRegion(CLexer(m_text), m_text.size(), nullptr);
    return m_interpreter.finish();
  }

 private:
  /// The names in front of `end`, in the replacement of a macro if one is given.
  void readRegion(CLexer lexer, std::size_t end, const MacroHead* macro) {
    CallParser parser(m_text, SourceLanguage::CFamily, [this, macro](const ParsedCall& call) {
      m_interpreter.take(call, *m_places[call.routine].routine, macro);
    });
    while (m_next < m_places.size() && m_places[m_next].begin < end) {
      switch (lexer.skipTo(m_places[m_next].begin)) {
        case CLexer::Reached::Code:
          readCalls(lexer, parser);
          break;
        case CLexer::Reached::Directive:
          readDirective(lexer.next());
          break;
        case CLexer::Reached::Beyond:
          break;
      }
      passPlaces(lexer.position());
    }
  }

  /// From a name until nothing is open.
  void readCalls(CLexer& lexer, CallParser& parser) {
    do {
      const SourceToken token = lexer.next();
      if (token.kind == SourceToken::Kind::End) return parser.finish();
      if (token.kind == SourceToken::Kind::Directive) readDirective(token);
      passPlaces(token.begin);
      if (m_next < m_places.size() && m_places[m_next].begin == token.begin) {
        parser.takeName(token, {m_next, m_places[m_next].routine->form});
        ++m_next;
      } else {
        parser.take(token);
      }
    } while (!parser.isIdle());
  }

  /// A macro's replacement is read like any other code; other directives hold no calls.
  void readDirective(const SourceToken& directive) {
    const std::optional<MacroHead> head = readMacroHead(m_text, directive);
    if (head) {
      passPlaces(head->replacement);
      const CLexer lexer(m_text.substr(0, directive.end), head->replacement, CLexer::Directives::Marks);
      readRegion(lexer, directive.end, &*head);
    }
    passPlaces(directive.end);
  }

  void passPlaces(std::size_t end) {
    while (m_next < m_places.size() && m_places[m_next].begin < end) ++m_next;
  }

  std::string_view m_text;
  const std::vector<CallPlace>& m_places;
  std::size_t m_next = 0;  ///< in m_places
  CallInterpreter m_interpreter;
};

/// What a macro of the source itself means comes before what one of a header with its name means.
void dropRedefined(std::vector<CallPlace>& places, const std::vector<MacroDefinition>& macros) {
  std::unordered_set<std::string_view> names;
  for (const MacroDefinition& macro : macros) names.insert(macro.head.name);
  std::erase_if(places, [&names](const CallPlace& place) {
    return place.routine->isMacro && names.count(place.routine->name) > 0;
  });
}

}  // namespace

SourceCalls readCallsInC(std::string_view text, const RoutineTable& routines) {
  std::vector<CallPlace> places = callPlacesInC(text, routines);
  if (places.empty()) return {};
  const std::vector<MacroDefinition> macros = readMacros(text);
  if (macros.empty()) return ReaderInC(text, places).read();
  const RoutineTable own(macroRoutines(macros, routines));
  dropRedefined(places, macros);
  addCallPlaces(places, callPlacesInC(text, own));
  return ReaderInC(text, places).read();
}

}  // namespace glossmill
