#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "tree/Random.h"

namespace glossmill::bench {

inline constexpr std::size_t kLanguageCount = 40;

struct LanguageWords {
  std::string_view code;
  std::string_view separator;  // between words; empty where the script writes none
  std::array<std::string_view, 10> words;
};

// Ordered so that any first twenty already cover the scripts.
const std::array<LanguageWords, kLanguageCount>& languageWords();

// A translation of a few words, without a quote.
std::string translationText(const LanguageWords& language, Random& random);

}  // namespace glossmill::bench
