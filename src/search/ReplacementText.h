#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "search/Expression.h"
#include "text/Result.h"

namespace glossmill {

/// What is put in the place of what was found: for a plain search the text as it stands; for an expression "$0" is what
/// was found, "$1" to
/// "$9" are its groups, "$$" is a dollar sign, "\n" and "\t" are a line feed and a tab, and a backslash takes the
/// meaning from any other character behind it.
class ReplacementText {
 public:
  static ReplacementText plain(std::string text);
  /// The error is one sentence: a group that the expression does not have.
  static Result<ReplacementText> ofExpression(std::string_view text, std::size_t groups);

  /// Adds to `out` what stands in the place of the match in the text.
  void appendTo(std::string& out, std::string_view text, const ExpressionMatch& match) const;

 private:
  static constexpr std::size_t kNoGroup = ~std::size_t{0};
  struct Piece {
    std::string text;
    std::size_t group = kNoGroup;  ///< that stands behind the text; 0 is the whole match
  };

  std::vector<Piece> m_pieces;
};

}  // namespace glossmill
