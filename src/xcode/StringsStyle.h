#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "text/Result.h"
#include "xcode/StringsLayout.h"

namespace glossmill {

/// How a value or a key is written between quotes of this kind, or in XML; with the quotes or tags.
Result<std::string> spelledValue(StringsSyntax syntax, char quote, std::string_view value);

/// How entries of a file look: what a new one is written like.
struct StringsStyle {
  enum class Comments { None, Block, Line };

  StringsSyntax syntax = StringsSyntax::Words;
  std::string lineEnd = "\n";
  std::string indentation;
  std::string separator = " = ";  ///< between key and value
  std::string beforeSemicolon;    ///< blanks
  char keyQuote = '"';            ///< 0: without quotes where it can be
  char valueQuote = '"';
  Comments comments = Comments::None;
  bool hasBlankInComment = true;  ///< between the mark of a comment and its text
  bool hasCommentOnLine = false;  ///< in front of the key, on its line
  std::size_t blankLines = 0;     ///< between two entries

  /// An entry without the indentation of its first line and without the end of its last one.
  Result<std::string> entry(std::string_view key, std::string_view value, std::string_view comment) const;

 private:
  std::string commentLines(std::string_view comment) const;
};

/// The style of an entry and of those beside it.
StringsStyle styleAround(const StringsLayout& layout, std::size_t entry);

/// The style of a file without entries.
StringsStyle emptyStyle(const StringsDocument& document);

}  // namespace glossmill
