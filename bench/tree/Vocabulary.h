#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "tree/Random.h"

namespace glossmill::bench {

using WordList = std::array<std::string_view, 64>;

const WordList& verbs();
const WordList& adjectives();
const WordList& nouns();

// Keys of different indexes differ, up to kMaximalKeys of them. No quote and no parenthesis occurs in a key.
inline constexpr std::size_t kMaximalKeys = std::size_t{1} << 24U;
std::string keyText(std::size_t index);

// Class names of different indexes differ, up to kMaximalClasses of them.
inline constexpr std::size_t kMaximalClasses = std::size_t{1} << 16U;
std::string className(std::size_t index);

// What a developer would note beside a key; the same for the same index.
std::string commentText(std::size_t index);

std::string capitalized(std::string_view word);

}  // namespace glossmill::bench
