#include "scan/CallGroups.h"

#include <algorithm>

#include "text/ByteSearch.h"

namespace glossmill {

bool CallGroups::next() {
  m_calls.clear();
  m_open.clear();
  m_opened = 0;
  const std::size_t name = m_finder.nextBefore(m_text.size());
  if (name == m_text.size()) return false;
  add(name);
  m_at = std::max(m_at, name);
  return true;
}

bool CallGroups::balance(const CancelFlag& canceled) {
  do {
    if (canceled.isSet()) return false;
    m_at = findEither(m_text, '(', ')', m_at);
    if (m_at == m_text.size()) return true;
    if (m_text[m_at] == '(') {
      openParenthesis();
    } else {
      closeParenthesis();
    }
    ++m_at;
  } while (m_opened == 0 || !m_open.empty());
  return true;
}

/// The first "(" behind all the names since the last one.
void CallGroups::openParenthesis() {
  for (std::size_t name = m_finder.nextBefore(m_at); name < m_at; name = m_finder.nextBefore(m_at)) add(name);
  for (; m_opened < m_calls.size(); ++m_opened) {
    m_calls[m_opened].open = m_at;
    m_open.push_back({m_opened, m_depth});
  }
  ++m_depth;
}

void CallGroups::closeParenthesis() {
  --m_depth;
  for (; !m_open.empty() && m_open.back().depthBefore == m_depth; m_open.pop_back()) {
    m_calls[m_open.back().index].close = m_at;
  }
}

}  // namespace glossmill
