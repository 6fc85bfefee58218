#pragma once

#include <string_view>
#include <vector>

#include "xcode/SourceToken.h"

namespace glossmill {

template <typename Lexer>
std::vector<SourceToken> tokensOf(std::string_view text) {
  std::vector<SourceToken> tokens;
  Lexer lexer(text);
  for (SourceToken token = lexer.next(); token.kind != SourceToken::Kind::End; token = lexer.next()) {
    tokens.push_back(token);
  }
  return tokens;
}

}  // namespace glossmill
