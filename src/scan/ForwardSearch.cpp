#include "scan/ForwardSearch.h"

#include "text/ByteSearch.h"

namespace glossmill {

std::size_t ForwardSearch::next(std::size_t from, std::size_t limit) {
  if (from >= limit) return limit;
  if (from < m_from || from > m_end) {
    m_from = m_end = from;
    m_isHit = false;
  }
  if (!m_isHit && m_end < limit) {
    m_end = findByte(m_text.substr(0, limit), m_wanted, m_end);
    m_isHit = m_end < limit;
  }
  return m_isHit && m_end < limit ? m_end : limit;
}

}  // namespace glossmill
