#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// Comment-free text as it comes out of CommentRemover, with the places of its quotes and line ends, so that a reader
/// of entries need not look for them again.
struct CleanText {
  struct LineEnd {
    std::size_t place = 0;         ///< of the '\n' in `text`
    std::size_t quotesBefore = 0;  ///< how many of `quotes` stand before it
    bool operator==(const LineEnd&) const = default;
  };

  std::string text;
  std::vector<std::size_t> quotes;  ///< places in `text` of every '"', ascending
  std::vector<LineEnd> lineEnds;
};

/// Removes comments from a strings file or an import file, character by character, in the program's own way (rule 22):
/// a lone slash outside a string takes the next character with it, a line comment takes its line feed with it, a star
/// inside a block comment swallows the character after it, and only one character before a quote decides whether it is
/// escaped. Text may come in pieces of valid UTF-8, cut anywhere.
class CommentRemover {
 public:
  enum class State { Code, String, BlockComment, LineComment, AfterSlash, AfterStar, SwallowedRest };

  /// Appends what is left of `piece` to `clean`.
  void feed(std::string_view piece, CleanText& clean);
  /// Where the next piece begins.
  State state() const { return m_state; }

 private:
  State m_state = State::Code;
  char m_previous = 0;  ///< the last character of the piece before, for the escape test across pieces
};

/// The whole text at once.
std::string removeComments(std::string_view text);

}  // namespace glossmill
