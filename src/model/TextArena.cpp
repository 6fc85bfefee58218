#include "model/TextArena.h"

#include <algorithm>

namespace glossmill {

namespace {
constexpr std::size_t kLargestBlock = 1 << 20;
}

StoredText TextArena::addLong(std::string_view text) {
  const auto length = static_cast<std::uint32_t>(text.size());
  char* const at = reserve(1 + sizeof length + text.size());
  *at = static_cast<char>(StoredText::kLong);
  std::memcpy(at + 1, &length, sizeof length);
  std::memcpy(at + 1 + sizeof length, text.data(), text.size());
  return StoredText(at);
}

void TextArena::addBlock(std::size_t bytes) {
  const std::size_t size = std::max(bytes, m_blockSize);
  m_blocks.push_back(std::unique_ptr<char[]>(new char[size]));
  m_next = m_blocks.back().get();
  m_left = size;
  m_blockSize = std::min(m_blockSize * 2, kLargestBlock);
}

}  // namespace glossmill
