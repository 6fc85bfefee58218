#include "search/TextGrams.h"

#include <algorithm>
#include <string>

#include "text/FoldCase.h"

namespace glossmill {

namespace {

constexpr std::uint32_t kGramMask = 0xFFFFFF;

bool isSpace(char byte) {
  return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

/// One blank in front, behind, and in place of any white space.
std::string spacedOut(std::string_view text) {
  std::string words = " ";
  for (const char byte : text) {
    if (!isSpace(byte)) {
      words += byte;
    } else if (words.back() != ' ') {
      words += ' ';
    }
  }
  if (words.back() != ' ') words += ' ';
  return words;
}

}  // namespace

std::vector<std::uint32_t> gramsOf(std::string_view text) {
  const std::string words = spacedOut(foldCase(text));
  std::vector<std::uint32_t> grams;
  if (words.size() < 3) return grams;
  grams.reserve(words.size() - 2);
  std::uint32_t gram = 0;
  for (std::size_t at = 0; at < words.size(); ++at) {
    gram = ((gram << 8) | static_cast<unsigned char>(words[at])) & kGramMask;
    if (at >= 2) grams.push_back(gram);
  }
  std::sort(grams.begin(), grams.end());
  grams.erase(std::unique(grams.begin(), grams.end()), grams.end());
  return grams;
}

double likeness(const std::vector<std::uint32_t>& one, const std::vector<std::uint32_t>& other) {
  if (one.empty() && other.empty()) return 0;
  std::size_t shared = 0;
  auto left = one.begin();
  auto right = other.begin();
  while (left != one.end() && right != other.end()) {
    shared += *left == *right ? 1U : 0U;
    const bool movesLeft = *left <= *right;
    const bool movesRight = *right <= *left;
    if (movesLeft) ++left;
    if (movesRight) ++right;
  }
  return 2.0 * static_cast<double>(shared) / static_cast<double>(one.size() + other.size());
}

}  // namespace glossmill
