#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "xcode/Argument.h"
#include "xcode/Routine.h"
#include "xcode/SourceLanguage.h"
#include "xcode/SourceToken.h"

namespace glossmill {

/// A call as it stands in a source.
struct ParsedCall {
  std::size_t routine = 0;              ///< the number that its name was given with
  std::size_t at = 0;                   ///< of the routine's name
  bool closed = true;                   ///< its last parenthesis is there
  std::span<const Argument> arguments;  ///< the first 128 of them; valid during the call of the listener only
};

/// A name that is a call's if what follows is as it must be.
struct CallName {
  std::size_t routine = 0;
  CallForm form = CallForm::Function;
};

/// Finds the calls in a sequence of tokens of either language, also those in arguments of others: however they nest,
/// one pass with a stack of what is open. A call ends unclosed at a bracket or ";" that cannot stand in its arguments.
class CallParser {
 public:
  using Listener = std::function<void(const ParsedCall&)>;

  CallParser(std::string_view text, SourceLanguage language, Listener listener)
      : m_text(text), m_language(language), m_listener(std::move(listener)) {}

  /// Nothing is open, so that tokens without a name would change nothing.
  bool isIdle() const { return m_calls.empty() && !m_hasName; }

  void take(const SourceToken& token);
  void takeName(const SourceToken& token, const CallName& name);
  /// Nothing more follows.
  void finish();

 private:
  struct OpenCall {
    std::size_t routine = 0;
    std::size_t at = 0;
    std::size_t firstBracket = 0;   ///< in m_brackets, of those inside the call
    std::size_t firstArgument = 0;  ///< in m_arguments
    ArgumentShape argument;
    CallForm form = CallForm::Function;
    std::uint32_t selectors = 1;   ///< parts of a message's selector so far
    std::uint32_t conditions = 0;  ///< "?" whose ":" is to come
  };

  bool openCall(const SourceToken& token);
  /// Gives the token to the innermost call; false when the call ended and another has to take it.
  bool takeInside(const SourceToken& token);
  bool takeOpening(const SourceToken& token, char bracket);
  bool takeClosing(const SourceToken& token, char bracket);
  bool takeAtBase(const SourceToken& token, char mark);
  void takeSemicolon();
  bool takeColon(const SourceToken& token);
  bool takeSelector();
  bool endMessage(char closing);

  bool isAtBase() const { return m_brackets.size() == m_calls.back().firstBracket; }
  void addToArgument(const SourceToken& token);
  void finishArgument();
  void endCall(bool closed);
  void dropCall();

  std::string_view m_text;
  SourceLanguage m_language;
  Listener m_listener;
  bool m_hasName = false;  ///< the token before was one
  CallName m_name;
  SourceToken m_last;
  ArgumentShape m_beforeLast;  ///< the innermost call's argument, without the last token
  std::vector<OpenCall> m_calls;
  std::vector<char> m_brackets;
  std::vector<Argument> m_arguments;
};

}  // namespace glossmill
