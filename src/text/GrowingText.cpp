#include "text/GrowingText.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace glossmill {

namespace {
constexpr std::size_t kSmallest = 256;
}

void GrowingText::append(std::string_view text) {
  if (text.empty()) return;
  if (text.size() > m_capacity - m_size) grow(m_size + text.size());
  std::memcpy(m_bytes.get() + m_size, text.data(), text.size());
  m_size += text.size();
}

void GrowingText::grow(std::size_t least) {
  const std::size_t capacity = std::max({least, 2 * m_capacity, kSmallest});
  void* const moved = std::realloc(m_bytes.get(), capacity);
  if (!moved) throw std::bad_alloc();
  static_cast<void>(m_bytes.release());
  m_bytes.reset(static_cast<char*>(moved));
  m_capacity = capacity;
}

}  // namespace glossmill
