#pragma once

#include <cstddef>
#include <cstdint>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace glossmill {

/// Sixteen UTF-16 units that are looked at together, whose low bytes come first (`lowByte` 0) or second (1).
class UnitBlock {
 public:
  static constexpr std::size_t kSize = 16;
  using Mask = std::uint32_t;

#if defined(__SSE2__)
  UnitBlock(const char* at, std::size_t lowByte) : m_first(load(at, lowByte)), m_second(load(at + kSize, lowByte)) {}

  /// Bit i says that unit i is not ASCII.
  Mask notAscii() const {
    const __m128i ascii = _mm_packs_epi16(isAscii(m_first), isAscii(m_second));
    return static_cast<Mask>(_mm_movemask_epi8(ascii)) ^ 0xFFFF;
  }
  /// Writes sixteen bytes, each the unit's value where it is ASCII.
  void narrow(char* out) const {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm_packus_epi16(m_first, m_second));
  }

 private:
  static __m128i load(const char* at, std::size_t lowByte) {
    const __m128i units = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    return lowByte == 0 ? units : _mm_or_si128(_mm_slli_epi16(units, 8), _mm_srli_epi16(units, 8));
  }
  static __m128i isAscii(__m128i units) {
    return _mm_cmpeq_epi16(_mm_and_si128(units, _mm_set1_epi16(static_cast<short>(0xFF80))), _mm_setzero_si128());
  }

  __m128i m_first;
  __m128i m_second;
#else
  UnitBlock(const char* at, std::size_t lowByte) : m_units(at), m_lowByte(lowByte) {}

  Mask notAscii() const {
    Mask mask = 0;
    for (std::size_t i = 0; i < kSize; ++i) mask |= static_cast<Mask>(!isAscii(i)) << i;
    return mask;
  }
  void narrow(char* out) const {
    for (std::size_t i = 0; i < kSize; ++i) out[i] = m_units[2 * i + m_lowByte];
  }

 private:
  bool isAscii(std::size_t unit) const {
    return m_units[2 * unit + 1 - m_lowByte] == 0 && (m_units[2 * unit + m_lowByte] & 0x80) == 0;
  }

  const char* m_units;
  std::size_t m_lowByte;
#endif
};

}  // namespace glossmill
