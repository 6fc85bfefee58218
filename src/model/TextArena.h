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
    const auto first = static_cast<unsigned char>(*m_at);
    if (first < kLong) return {m_at + 1, first};
    std::uint32_t length = 0;
    std::memcpy(&length, m_at + 1, sizeof length);
    return {m_at + 1 + sizeof length, length};
  }

 private:
  friend class TextArena;

  static constexpr unsigned char kLong = 255;

  /// The length in bytes, then the bytes. Nearly all texts are short: the length takes one byte, or four behind kLong.
  const char* m_at = nullptr;
};

/// Keeps many short texts in a few large blocks. Texts are never freed one by one: all go with the arena. One thread at
/// a time.
class TextArena {
 public:
  StoredText add(std::string_view text) {
    if (text.size() >= StoredText::kLong) return addLong(text);
    char* const at = reserve(1 + text.size());
    *at = static_cast<char>(text.size());
    if (!text.empty()) std::memcpy(at + 1, text.data(), text.size());
    return StoredText(at);
  }

 private:
  StoredText addLong(std::string_view text);
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
