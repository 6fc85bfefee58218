#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "search/CharacterSet.h"
#include "text/Result.h"

namespace glossmill {

/// A regular expression as it was written, before it is made into steps.
struct ExpressionNode {
  enum class Kind {
    Sequence,     ///< of its children; without any it takes nothing
    Alternation,  ///< one of its children, the first that goes on to an end
    Repetition,   ///< of its child, `least` to `most` times
    Group,        ///< its child, remembered under `number`
    Character,
    Any,  ///< every character but a line feed
    Set,
    LineBegin,
    LineEnd,
    WordEdge,
    NoWordEdge,
  };
  static constexpr std::size_t kNoEnd = ~std::size_t{0};

  Kind kind = Kind::Sequence;
  std::vector<ExpressionNode> children = {};
  char32_t character = 0;
  CharacterSet set = {};
  std::size_t number = 0;  ///< of a group, from 1
  std::size_t least = 0;
  std::size_t most = 0;
  bool isLazy = false;
};

struct ExpressionTree {
  ExpressionNode root;
  std::size_t groups = 0;
};

/// Reads characters, ".", "[…]", "\d \w \s \D \W \S", "^ $ \b \B", "(…)", "(?:…)", "|", "* + ? {n} {n,} {n,m}", each
/// also with "?" behind it, "\t \n \r", "\uHHHH". The error is one sentence that names the place, counted in characters
/// from 1. With `foldsCase` the tree is for texts in lower case.
Result<ExpressionTree> readExpression(std::string_view pattern, bool foldsCase);

}  // namespace glossmill
