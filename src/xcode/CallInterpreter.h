#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/Result.h"
#include "xcode/CallParser.h"
#include "xcode/CallReader.h"
#include "xcode/MacroDefinition.h"

namespace glossmill {

/// Turns the calls of one source into the texts that they look up, and into problems.
class CallInterpreter {
 public:
  using LiteralReader = Result<std::string> (*)(std::string_view literal);

  CallInterpreter(std::string_view text, LiteralReader readLiteral) : m_text(text), m_readLiteral(readLiteral) {}

  /// `macro` is the one whose replacement holds the call, if one does: what hands on its parameters is passed over.
  void take(const ParsedCall& call, const Routine& routine, const MacroHead* macro);

  /// Everything so far, in the order of the text.
  SourceCalls finish();

 private:
  struct Call {
    const ParsedCall& parsed;
    const Routine& routine;
    const MacroHead* macro;
  };

  Argument argumentOf(const Call& call, std::size_t parameter) const;
  Argument argumentOf(const Call& call, const TextSource& source) const;
  Argument labelledArgumentOf(const Call& call, std::size_t parameter) const;
  std::string_view labelOf(const Argument& argument) const;
  bool isCall(const Call& call) const;
  bool handsOn(const Call& call, const Argument& argument) const;

  void takeLookup(const Call& call, const Lookup& lookup);
  /// These report why there is nothing.
  std::optional<std::string> keyOf(const Call& call, const Argument& argument);
  std::optional<std::string> tableOf(const Call& call, const TextSource& source);
  std::optional<std::string> defaultValueOf(const Call& call, const TextSource& source);
  std::optional<std::string> literalOf(const Call& call, const Argument& argument, std::string_view what);

  std::optional<std::string> commentOf(const Call& call, const TextSource& source) const;
  void report(const Call& call, CallProblem kind, std::string text);
  std::string excerptOf(const Argument& argument) const;

  std::string_view m_text;
  LiteralReader m_readLiteral;
  SourceCalls m_found;
};

}  // namespace glossmill
