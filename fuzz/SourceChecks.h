#pragma once

#include <string_view>
#include <vector>

#include "fuzz/FuzzSupport.h"
#include "text/Utf8.h"
#include "xcode/CallReader.h"
#include "xcode/SourceText.h"
#include "xcode/SyntaxError.h"
#include "xcode/TokensOf.h"

namespace glossmill {

inline constexpr std::size_t kLongestForEveryPlace = 2048;  // whose time grows with the square

inline std::string_view spellingOf(const SourceToken& token, std::string_view text) {
  return text.substr(token.begin, token.end - token.begin);
}

inline void requireOrder(const std::vector<SourceToken>& tokens, std::string_view text) {
  std::size_t end = 0;
  for (const SourceToken& token : tokens) {
    require(token.begin >= end && token.end > token.begin, "tokens follow one another and are not empty");
    end = token.end;
  }
  require(end <= text.size(), "tokens lie in the text");
}

/// A place that somebody may want to skip to: a word begins there, and nothing joins it to what stands before.
inline bool beginsWord(std::string_view text, std::size_t place) {
  if (!isWordByte(text[place])) return false;
  if (place == 0) return true;
  return !isWordByte(text[place - 1]) && text[place - 1] != '\'' && beforeContinuations(text, place, 0) == place;
}

template <typename Lexer>
void requireSkips(const std::vector<SourceToken>& tokens, std::string_view text) {
  if (text.size() > kLongestForEveryPlace) return;
  std::vector<bool> isToken(text.size(), false);
  for (const SourceToken& token : tokens) isToken[token.begin] = token.kind != SourceToken::Kind::Directive;
  for (std::size_t place = 0; place < text.size(); ++place) {
    if (!beginsWord(text, place)) continue;
    const bool isCode = Lexer(text).skipTo(place) == Lexer::Reached::Code;
    require(isCode == isToken[place], "skipping ends where the tokens are");
  }
}

template <typename Item>
void requirePlaces(const std::vector<Item>& items, std::string_view text) {
  std::size_t last = 0;
  for (const Item& item : items) {
    require(item.offset >= last && item.offset < text.size(), "what is found comes in the order of the text");
    if (text.size() <= kLongestForEveryPlace) {
      require(item.place == placeOf(text, item.offset), "lines and columns are right");
    }
    last = item.offset;
  }
}

inline void requireSound(const SourceCalls& found, std::string_view text) {
  requirePlaces(found.calls, text);
  requirePlaces(found.problems, text);
  for (const FoundCall& call : found.calls) {
    require(isValidUtf8(call.key) && isValidUtf8(call.table), "keys and tables are valid UTF-8");
    require(!call.table.empty(), "every call has a table");
    require(!call.defaultValue || !call.defaultValue->empty(), "an empty default value is none");
  }
  for (const SourceProblem& problem : found.problems) {
    require(isValidUtf8(problem.text) && !problem.text.empty(), "a problem is a sentence");
  }
}

}  // namespace glossmill
