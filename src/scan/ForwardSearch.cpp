#include "scan/ForwardSearch.h"

#include "text/ByteSearch.h"

namespace glossmill {

std::size_t ForwardSearch::next(std::size_t from) {
  if (m_asked && from >= m_from && from <= m_found) return m_found;
  m_asked = true;
  m_from = from;
  m_found = findByte(m_text, m_wanted, from);
  return m_found;
}

}  // namespace glossmill
