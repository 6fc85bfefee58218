#include "text/MessageList.h"

namespace glossmill {

void MessageList::add(const Message& message) {
  message.appendTo(m_text);
  m_text.append("\n");
  m_ends.push_back(m_text.size());
}

void MessageList::clear() {
  m_text.clear();
  m_ends.clear();
}

std::string_view MessageList::message(std::size_t index) const {
  const std::size_t start = index == 0 ? 0 : m_ends[index - 1];
  return text().substr(start, m_ends[index] - 1 - start);
}

}  // namespace glossmill
