#pragma once

#include <cstddef>
#include <cstdint>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace glossmill {

/// Sixteen bytes that are looked at together. Each question gives a mask: bit i speaks of byte i.
class ByteBlock {
 public:
  static constexpr std::size_t kSize = 16;
  using Mask = std::uint32_t;

#if defined(__SSE2__)
  explicit ByteBlock(const char* at) : m_bytes(_mm_loadu_si128(reinterpret_cast<const __m128i*>(at))) {}

  Mask equal(char byte) const {
    return maskOf(_mm_cmpeq_epi8(m_bytes, _mm_set1_epi8(byte)));
  }
  Mask equalEither(char one, char other) const {
    const __m128i ones = _mm_cmpeq_epi8(m_bytes, _mm_set1_epi8(one));
    return maskOf(_mm_or_si128(ones, _mm_cmpeq_epi8(m_bytes, _mm_set1_epi8(other))));
  }
  Mask equalLetter(char lowerCase) const {
    const __m128i lower = _mm_or_si128(m_bytes, _mm_set1_epi8(0x20));
    return maskOf(_mm_cmpeq_epi8(lower, _mm_set1_epi8(lowerCase)));
  }
  Mask notAscii() const {
    return maskOf(m_bytes);
  }
  /// The bytes that are not smaller than this one, without a sign.
  Mask atLeast(unsigned char byte) const {
    return maskOf(_mm_cmpeq_epi8(_mm_max_epu8(m_bytes, _mm_set1_epi8(static_cast<char>(byte))), m_bytes));
  }

 private:
  static Mask maskOf(__m128i bytes) {
    return static_cast<Mask>(_mm_movemask_epi8(bytes));
  }

  __m128i m_bytes;
#else
  explicit ByteBlock(const char* at) : m_bytes(at) {}

  Mask equal(char byte) const {
    return maskWhere([byte](char other) { return other == byte; });
  }
  Mask equalEither(char one, char other) const {
    return equal(one) | equal(other);
  }
  /// The bytes that are this ASCII letter in either case.
  Mask equalLetter(char lowerCase) const {
    return maskWhere([lowerCase](char other) { return static_cast<char>(other | 0x20) == lowerCase; });
  }
  Mask notAscii() const {
    return maskWhere([](char other) { return (other & 0x80) != 0; });
  }
  Mask atLeast(unsigned char byte) const {
    return maskWhere([byte](char other) { return static_cast<unsigned char>(other) >= byte; });
  }

 private:
  template <typename Test>
  Mask maskWhere(Test test) const {
    Mask mask = 0;
    for (std::size_t i = 0; i < kSize; ++i) mask |= static_cast<Mask>(test(m_bytes[i])) << i;
    return mask;
  }

  const char* m_bytes;
#endif
};

}  // namespace glossmill
