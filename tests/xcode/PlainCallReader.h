#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "xcode/CLexer.h"
#include "xcode/CLiteral.h"
#include "xcode/CallInterpreter.h"
#include "xcode/CallReader.h"
#include "xcode/MacroRoutines.h"
#include "xcode/SourceText.h"
#include "xcode/SwiftLexer.h"
#include "xcode/SwiftLiteral.h"

namespace glossmill {

/// The macros with parameters of a source, from all of its tokens.
inline std::vector<MacroDefinition> plainMacros(std::string_view text) {
  std::vector<MacroDefinition> macros;
  CLexer lexer(text);
  for (SourceToken token = lexer.next(); token.kind != SourceToken::Kind::End; token = lexer.next()) {
    if (token.kind != SourceToken::Kind::Directive) continue;
    std::optional<MacroHead> head = readMacroHead(text, token);
    if (!head || !head->hasParameters) continue;
    const std::size_t begin = std::exchange(head->replacement, 0);
    macros.push_back({*std::move(head), withoutContinuations(text.substr(begin, token.end - begin))});
  }
  return macros;
}

/// Reads calls by looking at every token of a source: what the readers must find.
class PlainCallReader {
 public:
  static SourceCalls readInC(std::string_view text, const RoutineTable& routines) {
    const std::vector<MacroDefinition> macros = plainMacros(text);
    std::vector<Routine> all = macroRoutines(macros, routines);
    for (const Routine& routine : routines.routines()) {
      if (!routine.isMacro || !isDefined(macros, routine.name)) all.push_back(routine);
    }
    const RoutineTable table(std::move(all));
    PlainCallReader reader(text, table, cLiteralValue);
    reader.readRegion(CLexer(text), nullptr);
    return reader.m_interpreter.finish();
  }

  static SourceCalls readInSwift(std::string_view text, const RoutineTable& routines) {
    PlainCallReader reader(text, routines, swiftLiteralValue);
    CallParser parser = reader.makeParser(SourceLanguage::Swift, nullptr);
    SwiftLexer lexer(text);
    SourceToken last;
    for (SourceToken token = lexer.next(); token.kind != SourceToken::Kind::End; token = lexer.next()) {
      const Routine* routine = reader.swiftRoutineAt(token, last);
      reader.give(parser, token, routine);
      last = token;
    }
    parser.finish();
    return reader.m_interpreter.finish();
  }

 private:
  PlainCallReader(std::string_view text, const RoutineTable& routines, CallInterpreter::LiteralReader readLiteral)
      : m_text(text), m_routines(routines), m_interpreter(text, readLiteral) {}

  static bool isDefined(const std::vector<MacroDefinition>& macros, const std::string& name) {
    for (const MacroDefinition& macro : macros) {
      if (macro.head.name == name) return true;
    }
    return false;
  }

  CallParser makeParser(SourceLanguage language, const MacroHead* macro) {
    return {m_text, language, [this, macro](const ParsedCall& call) {
              m_interpreter.take(call, m_routines.routines()[call.routine], macro);
            }};
  }

  void give(CallParser& parser, const SourceToken& token, const Routine* routine) {
    if (!routine) return parser.take(token);
    parser.takeName(token, {static_cast<std::size_t>(routine - m_routines.routines().data()), routine->form});
  }

  void readRegion(CLexer lexer, const MacroHead* macro) {
    CallParser parser = makeParser(SourceLanguage::CFamily, macro);
    for (SourceToken token = lexer.next(); token.kind != SourceToken::Kind::End; token = lexer.next()) {
      const bool isDirective = token.kind == SourceToken::Kind::Directive;
      const std::optional<MacroHead> head = isDirective ? readMacroHead(m_text, token) : std::nullopt;
      if (head) readRegion(CLexer(m_text.substr(0, token.end), head->replacement, CLexer::Directives::Marks), &*head);
      const bool isWord = token.kind == SourceToken::Kind::Word;
      give(parser, token, isWord ? m_routines.find(withoutContinuations(spelling(token))) : nullptr);
    }
    parser.finish();
  }

  const Routine* swiftRoutineAt(const SourceToken& token, const SourceToken& last) const {
    if (token.kind != SourceToken::Kind::Word) return nullptr;
    const bool isString = spelling(token) == "String";
    const Routine* routine = m_routines.find(isString ? "localized" : spelling(token));
    if (!routine || (routine->form == CallForm::Constructor) != isString) return nullptr;
    const bool isMethod = token.begin > 0 && m_text[token.begin - 1] == '.';
    if (routine->form == CallForm::Method) return isMethod ? routine : nullptr;
    return spelling(last) == "func" && isBlankBetween(last.end, token.begin) ? nullptr : routine;
  }

  bool isBlankBetween(std::size_t begin, std::size_t end) const {
    return m_text.substr(begin, end - begin).find_first_not_of(" \t\v\f\r\n") == std::string_view::npos;
  }

  std::string_view spelling(const SourceToken& token) const {
    return m_text.substr(token.begin, token.end - token.begin);
  }

  std::string_view m_text;
  const RoutineTable& m_routines;
  CallInterpreter m_interpreter;
};

}  // namespace glossmill
