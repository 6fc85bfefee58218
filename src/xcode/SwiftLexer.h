#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "xcode/SourceToken.h"

namespace glossmill {

/// Gives the tokens of Swift. Comments, which nest, are seen through; what stands in the interpolations of a string is
/// code like any other. Whoever waits for a certain place skips to it, which is many times quicker than token by token.
/// Time is linear in the length of the text, however deep strings and interpolations nest.
class SwiftLexer {
 public:
  explicit SwiftLexer(std::string_view text) : m_text(text) {}

  std::size_t position() const { return m_at; }

  SourceToken next();

  enum class Reached {
    Code,    ///< the place, where a token begins
    Beyond,  ///< the end of the comment, string or regular expression that holds the place
  };

  /// Goes on to `place`, at or after position(), where a word begins if it is code that stands there.
  Reached skipTo(std::size_t place);

 private:
  /// A string in whose interpolation the lexer stands.
  struct OpenString {
    std::size_t hashes = 0;
    bool hasLines = false;
    std::size_t parentheses = 0;  ///< that are open in the interpolation, its own with them
  };

  /// What a byte that skipTo stopped at begins.
  void skipPiece(std::size_t from);
  void skipSlash(std::size_t from);
  bool skipComment();
  void skipSpace();

  SourceToken take(SourceToken::Kind kind, std::size_t end);
  SourceToken takeHashes();
  SourceToken takeMark();
  SourceToken takeSlash();

  /// Each of these moves to the end of a piece of a string and says what the piece is.
  SourceToken::Kind readString(std::size_t quote, std::size_t hashes);
  SourceToken::Kind readRest();
  SourceToken::Kind readPiece(const OpenString& string);
  bool closeParenthesis();

  bool beginsLines(std::size_t quote, std::size_t hashes) const;
  std::size_t closingLength(std::size_t at, const OpenString& string) const;
  bool hasHashes(std::size_t at, std::size_t count) const;
  std::size_t hashesBefore(std::size_t at, std::size_t from) const;

  std::string_view m_text;
  std::size_t m_at = 0;
  std::vector<OpenString> m_open;
};

}  // namespace glossmill
