#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "search/CharacterSet.h"
#include "text/Result.h"
#include "text/TextRange.h"

namespace glossmill {

struct ExpressionNode;

/// What an expression takes of a text.
struct ExpressionMatch {
  TextRange range;
  std::vector<std::optional<TextRange>> groups;  ///< nothing for a group that took no part
};

/// A regular expression. All ways through it are followed at once, a character at a time, so that the time grows with
/// the length of the text and no expression can make it explode; references back to a group and looking around are
/// therefore not part of it. "^" and "$" are the ends of lines.
class Expression {
 public:
  /// With `foldsCase` for texts that foldCase() has put into lower case.
  static Result<Expression> of(std::string_view pattern, bool foldsCase);

  /// The first match that begins at `from` or behind it, a character's begin. Matches of nothing are passed over. The
  /// text is valid UTF-8.
  std::optional<ExpressionMatch> find(std::string_view text, std::size_t from) const;
  std::size_t groups() const { return m_groups; }

 private:
  friend class ExpressionBuilder;
  friend class ExpressionRun;

  enum class Action : std::uint8_t {
    Character,
    Any,
    Set,
    Fork,
    Jump,
    Keep,
    LineBegin,
    LineEnd,
    WordEdge,
    NoWordEdge,
    Accept
  };
  struct Step {
    Action action = Action::Accept;
    char32_t character = 0;
    std::uint32_t target = 0;  ///< of a jump; the preferred way of a fork; the place of a set or of what is kept
    std::uint32_t other = 0;   ///< the other way of a fork
  };

  Expression() = default;

  std::vector<Step> m_steps;
  std::vector<CharacterSet> m_sets;
  std::size_t m_groups = 0;
  std::string m_required;           ///< every match holds it; may be empty
  std::array<bool, 256> m_first{};  ///< the bytes that a match begins with
};

}  // namespace glossmill
