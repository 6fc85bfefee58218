#pragma once

#include <algorithm>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// Texts put together from pieces by chance, the same in every run.
class RandomPieces {
 public:
  explicit RandomPieces(unsigned seed) : m_random(seed) {}

  /// Below `bound`, which is at least 1.
  std::size_t number(std::size_t bound) { return m_random() % bound; }
  bool oneIn(std::size_t chances) { return number(chances) == 0; }

  template <typename List>
  const auto& pick(const List& list) {
    return list[number(std::size(list))];
  }

  std::string heap(const std::vector<std::string>& pieces, std::size_t most) {
    std::string text;
    for (std::size_t left = number(most + 1); left > 0; --left) text += pick(pieces);
    return text;
  }

  /// The text with a few ASCII characters lost, doubled or moved.
  std::string damaged(std::string text) {
    for (std::size_t left = number(3); left > 0; --left) {
      const std::size_t at = number(text.size() + 1);
      const bool isAscii = at < text.size() && static_cast<unsigned char>(text[at]) < 0x80;
      if (isAscii) text.erase(at, 1);
    }
    static constexpr std::string_view kMarks = "\"'\\={}();<>/*#& \n";
    for (std::size_t left = number(3); left > 0; --left) {
      const std::size_t at = number(text.size() + 1);
      const bool isInside = at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
      if (!isInside) text.insert(at, 1, pick(kMarks));
    }
    return text;
  }

 private:
  std::mt19937 m_random;
};

}  // namespace glossmill
