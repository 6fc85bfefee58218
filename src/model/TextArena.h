#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace glossmill {

/// A text kept in a TextArena: one pointer, valid as long as its arena. Default-constructed it is no text at all, which
/// is not the same as the empty text.
class StoredText {
 public:
  StoredText() = default;
  explicit StoredText(const char* at) : m_at(at) {}

  explicit operator bool() const { return m_at != nullptr; }
  std::string_view view() const {
    std::uint32_t length = 0;
    std::memcpy(&length, m_at, sizeof length);
    return {m_at + sizeof length, length};
  }

 private:
  const char* m_at = nullptr;  ///< a 32-bit length in bytes, then the bytes
};

/// Keeps many short texts in a few large blocks. Texts are never freed one by one: all go with the arena. One thread at
/// a time.
class TextArena {
 public:
  StoredText add(std::string_view text) {
    const auto length = static_cast<std::uint32_t>(text.size());
    char* at = reserve(sizeof length + length);
    std::memcpy(at, &length, sizeof length);
    if (length != 0) std::memcpy(at + sizeof length, text.data(), length);
    return StoredText(at);
  }

 private:
  char* reserve(std::size_t bytes) {
    if (bytes > m_left) addBlock(bytes);
    char* at = m_next;
    m_next += bytes;
    m_left -= bytes;
    return at;
  }
  /// Makes room for at least `bytes`.
  void addBlock(std::size_t bytes);

  std::vector<std::unique_ptr<char[]>> m_blocks;
  char* m_next = nullptr;
  std::size_t m_left = 0;
  std::size_t m_blockSize = 64;  ///< of the next block; doubles up to kLargestBlock
};

}  // namespace glossmill
