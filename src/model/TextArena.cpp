#include "model/TextArena.h"

#include <algorithm>

namespace glossmill {

namespace {
constexpr std::size_t kLargestBlock = 1 << 20;
}

void TextArena::addBlock(std::size_t bytes) {
  const std::size_t size = std::max(bytes, m_blockSize);
  m_blocks.push_back(std::unique_ptr<char[]>(new char[size]));
  m_next = m_blocks.back().get();
  m_left = size;
  m_blockSize = std::min(m_blockSize * 2, kLargestBlock);
}

}  // namespace glossmill
