#pragma once

#include <cstddef>

namespace glossmill {

/// A piece of a source file that means something: no white space, no comment.
struct SourceToken {
  enum class Kind {
    End,            ///< of the text; it is given again and again
    Word,           ///< a name or a number
    Literal,        ///< a string with its quotes, and what stands directly in front of them and belongs to them
    BrokenLiteral,  ///< a string that its line or the text ends
    Interpolation,  ///< Swift: a string, or what follows an interpolation in it, up to the next "\("
    LiteralRest,    ///< Swift: what follows the last interpolation in a string
    Character,      ///< a character literal, or a regular expression of Swift
    Mark,           ///< any other single byte
    Directive,      ///< C: a line of the preprocessor, with all lines that it continues on, without its line end
  };

  Kind kind = Kind::End;
  std::size_t begin = 0;
  std::size_t end = 0;  ///< behind the last byte
};

}  // namespace glossmill
