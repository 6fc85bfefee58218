#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "xcode/SourceLanguage.h"
#include "xcode/SourceToken.h"

namespace glossmill {

/// An argument of a call, told apart as far as the text it stands for can be read off.
struct Argument {
  enum class Kind {
    Missing,
    Literal,        ///< one string, or several that the compiler joins
    BrokenLiteral,  ///< one of them has no end
    Interpolated,   ///< a string of Swift with code in it
    Nothing,        ///< nil and the like
    Word,           ///< a name that stands alone
    Declaration,    ///< "NSString *key": this is no call
    Other,
  };

  Kind kind = Kind::Missing;
  std::size_t begin = 0;  ///< of the string or word, or of all of it
  std::size_t end = 0;
  std::size_t labelBegin = 0;  ///< in Swift; where it has none, its label is empty
  std::size_t labelEnd = 0;
};

/// Makes an argument of its tokens. Parentheses around it, CFSTR, casts and the "@" in front of a string are seen
/// through.
class ArgumentShape {
 public:
  void take(const SourceToken& token, std::string_view text, SourceLanguage language);
  /// What stands in between belongs to it as well.
  void extendTo(std::size_t end) { m_argument.end = end; }
  /// The word so far is a label, if it is one; says whether it was.
  bool takeLabel();
  Argument finish(std::string_view text) const;

 private:
  void takeString(const SourceToken& token, SourceLanguage language);
  void takeInterpolation(const SourceToken& token, std::string_view text);
  void takeWord(const SourceToken& token, std::string_view text);
  void takeMark(char mark);
  void openParenthesis();
  void closeParenthesis();
  void dropCast();

  Argument m_argument;
  std::size_t m_stringBegin = 0;
  std::size_t m_stringEnd = 0;
  std::uint32_t m_interpolations = 0;  ///< that are open
  std::uint32_t m_parentheses = 0;     ///< around the argument, and open
  bool m_closed = false;               ///< one of them was closed
  bool m_cfstr = false;                ///< its parenthesis must follow
  bool m_at = false;                   ///< its string must follow
};

}  // namespace glossmill
