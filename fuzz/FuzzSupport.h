#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace glossmill {

/// Ends the program, so that the fuzzer keeps the input, when something that must hold does not.
inline void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "This does not hold: %s\n", what);
  std::abort();
}

inline std::string_view asText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

inline bool liesIn(std::string_view part, std::string_view whole) {
  return part.data() >= whole.data() && part.data() + part.size() <= whole.data() + whole.size();
}

/// The text in short pieces. Where it is cut depends on the text alone, so that an input always fails in the same way.
inline std::vector<std::string_view> cutInPieces(std::string_view text) {
  constexpr std::uint32_t kFactor = 1664525;
  constexpr std::uint32_t kStep = 1013904223;
  std::uint32_t state = static_cast<std::uint32_t>(text.size());
  for (const char byte : text) state = (state ^ static_cast<unsigned char>(byte)) * kFactor;
  std::vector<std::string_view> pieces;
  while (!text.empty()) {
    state = state * kFactor + kStep;
    const std::size_t length = std::min<std::size_t>((state >> 16) % 9, text.size());
    pieces.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return pieces;
}

}  // namespace glossmill
