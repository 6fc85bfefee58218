#pragma once

#include <cstddef>
#include <string_view>

namespace glossmill {

/// How seldom sources hold a byte of a word; the scale does not matter.
inline std::size_t rarityOf(char byte) {
  constexpr std::string_view kCommonFirst = "etrinsaolcdpumfg_hbyvkwxqjz";
  const std::size_t rank = kCommonFirst.find(byte);
  if (rank != std::string_view::npos) return rank;
  return byte >= 'A' && byte <= 'Z' ? 14 : 20;
}

}  // namespace glossmill
