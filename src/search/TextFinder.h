#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "search/Expression.h"
#include "text/Result.h"

namespace glossmill {

/// What is looked for in texts.
struct FindWish {
  std::string text;
  bool isExpression = false;
  bool wholeWords = false;  ///< what is found neither begins nor ends inside a word
  bool matchesCase = false;
};

/// Finds what is wished in one text after the other.
class TextFinder {
 public:
  /// An error for an expression that is wrong, and for the empty text.
  static Result<TextFinder> of(const FindWish& wish);

  /// All places, from the left, none in another and none empty. The text is valid UTF-8.
  std::vector<ExpressionMatch> find(std::string_view text) const;
  /// How many groups a match has.
  std::size_t groups() const { return m_expression ? m_expression->groups() : 0; }

 private:
  TextFinder() = default;
  std::optional<ExpressionMatch> next(std::string_view text, std::size_t from) const;

  FindWish m_wish;
  std::string m_wanted;  ///< the plain text, in lower case where the case does not count
  std::optional<Expression> m_expression;
};

}  // namespace glossmill
