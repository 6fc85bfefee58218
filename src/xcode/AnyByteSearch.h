#pragma once

#include <bit>
#include <cstddef>
#include <string_view>

#include "text/ByteBlock.h"

namespace glossmill {

/// The place of the first of four bytes in `text` at or after `from`, or the length of `text`.
template <char kA, char kB, char kC, char kD>
std::size_t findAnyOf(std::string_view text, std::size_t from) {
  if (from >= text.size()) return text.size();
  std::size_t at = from;
  for (; at + ByteBlock::kSize <= text.size(); at += ByteBlock::kSize) {
    const ByteBlock block(text.data() + at);
    const ByteBlock::Mask hits = block.equalEither(kA, kB) | block.equalEither(kC, kD);
    if (hits != 0) return at + static_cast<std::size_t>(std::countr_zero(hits));
  }
  const auto isOne = [](char byte) { return byte == kA || byte == kB || byte == kC || byte == kD; };
  while (at < text.size() && !isOne(text[at])) ++at;
  return at;
}

}  // namespace glossmill
