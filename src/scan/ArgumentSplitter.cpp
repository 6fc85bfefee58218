#include "scan/ArgumentSplitter.h"

namespace glossmill {

std::variant<SourceString, CallRejection> ArgumentSplitter::split(std::size_t open, std::size_t close) {
  if (open == m_text.size()) return CallRejection::NoParenthesis;
  if (close == m_text.size()) return CallRejection::Unbalanced;
  const std::size_t keyOpen = m_keyOpen.next(m_keyAt.next(open, close), close);
  if (keyOpen == close) return CallRejection::NoKey;
  const std::size_t keyClose = m_keyClose.next(keyOpen + 1, close);
  if (keyClose == close) return CallRejection::UnclosedKey;
  const std::size_t comma = m_comma.next(keyClose + 1, close);
  if (comma == close) return CallRejection::NoComma;
  const std::size_t commentOpen = m_commentOpen.next(m_commentAt.next(comma + 1, close), close);
  if (commentOpen == close) return CallRejection::NoComment;
  const std::size_t commentClose = m_commentClose.next(commentOpen + 1, close);
  if (commentClose == close) return CallRejection::UnclosedComment;
  return SourceString{m_text.substr(keyOpen + 1, keyClose - keyOpen - 1),
                      m_text.substr(commentOpen + 1, commentClose - commentOpen - 1)};
}

}  // namespace glossmill
