#pragma once

#include <cstddef>
#include <cstdint>

namespace glossmill::bench {

// Numbers that are the same on every machine and with every standard library.
class Random {
 public:
  explicit Random(std::uint64_t seed) : m_state(seed) {}

  std::uint64_t next() {
    m_state += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = m_state;
    mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31U);
  }

  // `bound` is at least 1.
  std::size_t below(std::size_t bound) { return static_cast<std::size_t>(next() % bound); }

  bool oneIn(std::size_t chances) { return below(chances) == 0; }

  template <typename List>
  const auto& pick(const List& list) {
    return list[below(list.size())];
  }

 private:
  std::uint64_t m_state;
};

}  // namespace glossmill::bench
