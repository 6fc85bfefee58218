#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "xcode/TokensOf.h"

namespace glossmill {

inline std::string nameOf(SourceToken::Kind kind) {
  using enum SourceToken::Kind;
  switch (kind) {
    case End:
      return "end";
    case Word:
      return "word";
    case Literal:
      return "literal";
    case BrokenLiteral:
      return "broken";
    case Interpolation:
      return "interpolation";
    case LiteralRest:
      return "rest";
    case Character:
      return "character";
    case Mark:
      return "mark";
    case Directive:
      return "directive";
  }
  return "?";
}

/// A text and its tokens, each as its kind and its spelling.
struct LexedRow {
  std::string text;
  std::vector<std::string> tokens;
};

template <typename Lexer>
void expectTokens(const std::vector<LexedRow>& rows) {
  for (const LexedRow& row : rows) {
    std::vector<std::string> tokens;
    for (const SourceToken& token : tokensOf<Lexer>(row.text)) {
      tokens.push_back(nameOf(token.kind) + " " + row.text.substr(token.begin, token.end - token.begin));
    }
    EXPECT_EQ(tokens, row.tokens) << "in: " << row.text;
  }
}

}  // namespace glossmill
