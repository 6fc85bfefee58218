#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace glossmill {

/// A text that is added to at its end until it is emptied, and may become very long. A std::string lies in memory twice
/// whenever it moves to a larger place; this one leaves the moving to the C library, which can move whole pages.
class GrowingText {
 public:
  void append(std::string_view text);
  /// Keeps the memory.
  void clear() { m_size = 0; }

  std::size_t size() const { return m_size; }
  /// Valid until the text is changed.
  std::string_view view() const { return {m_bytes.get(), m_size}; }

 private:
  struct Freer {
    void operator()(char* bytes) const { std::free(bytes); }
  };

  void grow(std::size_t least);

  std::unique_ptr<char[], Freer> m_bytes;
  std::size_t m_size = 0;
  std::size_t m_capacity = 0;
};

}  // namespace glossmill
