#include "xcode/LineCounter.h"

#include "text/ByteSearch.h"

namespace glossmill {

std::size_t LineCounter::lineOf(std::size_t at) {
  const std::string_view before = m_text.substr(0, at);
  while (true) {
    const std::size_t end = findEither(before, '\n', '\r', m_lineStart);
    const std::size_t next = end + (m_text.substr(end).starts_with("\r\n") ? 2 : 1);
    if (end == at || next > at) return m_line;
    m_lineStart = next;
    ++m_line;
  }
}

}  // namespace glossmill
