#include "search/ReplacementText.h"

#include <optional>
#include <utility>

namespace glossmill {

namespace {

char escaped(char letter) {
  if (letter == 'n') return '\n';
  return letter == 't' ? '\t' : letter;
}

}  // namespace

ReplacementText ReplacementText::plain(std::string text) {
  ReplacementText replacement;
  replacement.m_pieces.push_back({std::move(text), kNoGroup});
  return replacement;
}

Result<ReplacementText> ReplacementText::ofExpression(std::string_view text, std::size_t groups) {
  ReplacementText replacement;
  replacement.m_pieces.emplace_back();
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char next = at + 1 < text.size() ? text[at + 1] : '\0';
    const bool isGroup = text[at] == '$' && next >= '0' && next <= '9';
    const bool isEscape = (text[at] == '\\' && next != '\0') || (text[at] == '$' && next == '$');
    if (!isGroup) {
      replacement.m_pieces.back().text += !isEscape ? text[at] : text[at] == '\\' ? escaped(next) : '$';
      at += isEscape ? 1 : 0;
      continue;
    }
    const auto group = static_cast<std::size_t>(next - '0');
    if (group > groups) return Error{"The expression has no group " + std::to_string(group) + "."};
    replacement.m_pieces.back().group = group;
    replacement.m_pieces.emplace_back();
    ++at;
  }
  return replacement;
}

void ReplacementText::appendTo(std::string& out, std::string_view text, const ExpressionMatch& match) const {
  for (const Piece& piece : m_pieces) {
    out += piece.text;
    if (piece.group == kNoGroup) continue;
    const std::optional<TextRange> range =
        piece.group == 0 ? std::optional(match.range) : match.groups[piece.group - 1];
    if (range) out += text.substr(range->begin, range->length);
  }
}

}  // namespace glossmill
