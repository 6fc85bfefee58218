#pragma once

#include <cstddef>
#include <string_view>

#include "xcode/CPieces.h"
#include "xcode/SourceToken.h"

namespace glossmill {

/// Gives the tokens of C, C++, Objective-C or Objective-C++, whose dialects differ in nothing that matters here.
/// Comments and line continuations are seen through; a directive of the preprocessor is one token. Whoever waits for a
/// certain place skips to it, which is many times quicker than token by token. Time is linear in the length of the
/// text.
class CLexer {
 public:
  enum class Directives {
    Tokens,  ///< a "#" that begins a line begins a directive
    Marks,   ///< it is a mark like others, since all of the text is one directive
  };

  explicit CLexer(std::string_view text, std::size_t begin = 0, Directives directives = Directives::Tokens)
      : m_text(text), m_begin(begin), m_at(begin), m_directives(directives) {}

  std::size_t position() const { return m_at; }

  SourceToken next();

  enum class Reached {
    Code,       ///< the place, where a token begins
    Directive,  ///< the beginning of the directive that holds the place
    Beyond,     ///< the end of the comment or literal that holds the place
  };

  /// Goes on to `place`, at or after position(), where a word begins if it is code that stands there.
  Reached skipTo(std::size_t place);

 private:
  static constexpr std::size_t kNone = std::string_view::npos;

  /// What a byte that skipTo stopped at begins.
  void skipPiece(std::size_t from);
  /// From a "/"; says whether it began a comment.
  bool skipComment();
  void skipSpace();

  SourceToken take(SourceToken::Kind kind, std::size_t end);
  SourceToken takeWord();
  SourceToken takeString(const LiteralEnd& literal);

  bool beginsDirective(std::size_t at) const;
  /// Only blanks and comments stand before `at` on its line.
  bool beginsLine(std::size_t at) const;
  bool isDigitSeparator(std::size_t at, std::size_t from) const;
  bool beginsRawString(std::size_t quote, std::size_t from) const;
  std::size_t directiveEnd(std::size_t at) const;
  std::size_t wordEnd();

  std::string_view m_text;
  std::size_t m_begin;
  std::size_t m_at;
  Directives m_directives;
  std::size_t m_commentEnd = kNone;    ///< of the last comment of /* */
  bool m_commentBeganLine = false;     ///< that comment
  std::size_t m_separatorEnd = kNone;  ///< behind the last quote inside a number
};

}  // namespace glossmill
