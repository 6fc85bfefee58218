#include "search/TextFinder.h"

#include <utility>

#include "text/CharacterKinds.h"
#include "text/FoldCase.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

bool isContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

bool isWordAt(std::string_view text, std::size_t at) {
  std::string_view rest = text.substr(at);
  return !rest.empty() && isWordCharacter(takeCodePoint(rest));
}

bool isWordBefore(std::string_view text, std::size_t at) {
  if (at == 0) return false;
  do {
    --at;
  } while (at > 0 && isContinuation(text[at]));
  return isWordAt(text, at);
}

/// Where one word goes on.
bool isInsideWord(std::string_view text, std::size_t at) {
  return isWordBefore(text, at) && isWordAt(text, at);
}

std::size_t nextCharacter(std::string_view text, std::size_t at) {
  do {
    ++at;
  } while (at < text.size() && isContinuation(text[at]));
  return at;
}

}  // namespace

Result<TextFinder> TextFinder::of(const FindWish& wish) {
  if (wish.text.empty()) return Error{"There is nothing to look for."};
  TextFinder finder;
  finder.m_wish = wish;
  finder.m_wanted = wish.matchesCase ? wish.text : foldCase(wish.text);
  if (!wish.isExpression) return finder;
  Result<Expression> expression = Expression::of(wish.text, !wish.matchesCase);
  if (!expression) return expression.error();
  finder.m_expression = std::move(expression.value());
  return finder;
}

std::optional<ExpressionMatch> TextFinder::next(std::string_view text, std::size_t from) const {
  if (m_expression) return m_expression->find(text, from);
  const std::size_t place = text.find(m_wanted, from);
  if (place == std::string_view::npos) return std::nullopt;
  return ExpressionMatch{{place, m_wanted.size()}, {}};
}

std::vector<ExpressionMatch> TextFinder::find(std::string_view text) const {
  // A letter and its twin take as many bytes, so that places are the same in both texts.
  const std::string folded = m_wish.matchesCase ? std::string() : foldCase(text);
  const std::string_view searched = m_wish.matchesCase ? text : std::string_view(folded);
  std::vector<ExpressionMatch> matches;
  std::size_t from = 0;
  while (from < searched.size()) {
    std::optional<ExpressionMatch> match = next(searched, from);
    if (!match) break;
    const TextRange range = match->range;
    const bool isTaken =
        !m_wish.wholeWords || (!isInsideWord(searched, range.begin) && !isInsideWord(searched, range.end()));
    from = isTaken ? range.end() : nextCharacter(searched, range.begin);
    if (isTaken) matches.push_back(std::move(*match));
  }
  return matches;
}

}  // namespace glossmill
