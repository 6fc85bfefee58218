#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "text/ByteBlock.h"

namespace glossmill {

/// The place of the first `byte` in `text` at or after `from`, or the length of `text`.
inline std::size_t findByte(std::string_view text, char byte, std::size_t from) {
  if (from >= text.size()) return text.size();
  const void* found = std::memchr(text.data() + from, byte, text.size() - from);
  return found ? static_cast<std::size_t>(static_cast<const char*>(found) - text.data()) : text.size();
}

/// The same, quicker where the byte is only a few places away.
inline std::size_t findNearByte(std::string_view text, char byte, std::size_t from) {
  constexpr std::size_t kNear = 8;
  for (const std::size_t end = std::min(from + kNear, text.size()); from < end; ++from) {
    if (text[from] == byte) return from;
  }
  return findByte(text, byte, from);
}

/// The place of the first `one` or `other` in `text` at or after `from`, or the length of `text`.
inline std::size_t findEither(std::string_view text, char one, char other, std::size_t from) {
  if (from >= text.size()) return text.size();
  std::size_t at = from;
  for (; at + ByteBlock::kSize <= text.size(); at += ByteBlock::kSize) {
    const ByteBlock block(text.data() + at);
    const ByteBlock::Mask hits = block.equalEither(one, other);
    if (hits != 0) return at + static_cast<std::size_t>(std::countr_zero(hits));
  }
  while (at < text.size() && text[at] != one && text[at] != other) ++at;
  return at;
}

}  // namespace glossmill
