#include "scan/CallFinder.h"

#include <algorithm>

#include "scan/CallSearch.h"

namespace glossmill {

namespace {
constexpr std::size_t kLookAhead = 64 * 1024;
}

std::size_t CallFinder::nextBefore(std::size_t limit) {
  while (!m_isKnown && m_at < limit) lookAhead();
  if (m_at >= limit) return limit;
  m_isKnown = false;
  return m_at++;
}

/// A call that begins in the window may end behind it.
void CallFinder::lookAhead() {
  const std::size_t windowEnd = std::min(m_at + kLookAhead, m_text.size());
  const std::size_t end = std::min(windowEnd + kCallNameLength - 1, m_text.size());
  const std::size_t found = findLocalizedStringCall(m_text.substr(0, end), m_at);
  m_isKnown = found < end;
  m_at = m_isKnown ? found : windowEnd;
}

}  // namespace glossmill
