#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace glossmill {

/// All pieces of three bytes of the text, each once and sorted, by which similar texts are found. Case does not count,
/// nor does how much white space stands between two words; a text begins and ends with a word's end. The empty text,
/// and one of white space, has none.
std::vector<std::uint32_t> gramsOf(std::string_view text);

/// How much two texts have in common, from 0 to 1: the share of pieces that both have. 0 where both have none.
double likeness(const std::vector<std::uint32_t>& one, const std::vector<std::uint32_t>& other);

}  // namespace glossmill
