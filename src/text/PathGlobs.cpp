#include "text/PathGlobs.h"

#include <algorithm>

#include "text/Split.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

constexpr std::size_t kNoStar = std::string_view::npos;

/// Says whether a sequence is what a pattern with stars describes, going back to the last star only: time grows with
/// the product of both lengths at most. `isStar(i)` and `fits(i, j)` ask for single items.
template <typename IsStar, typename Fits>
bool fitsPattern(std::size_t patternSize, std::size_t size, IsStar isStar, Fits fits) {
  std::size_t in = 0;
  std::size_t at = 0;
  std::size_t star = kNoStar;
  std::size_t starAt = 0;
  while (at < size) {
    if (in < patternSize && isStar(in)) {
      star = in++;
      starAt = at;
    } else if (in < patternSize && fits(in, at)) {
      ++in;
      ++at;
    } else if (star != kNoStar) {
      in = star + 1;
      at = ++starAt;
    } else {
      return false;
    }
  }
  while (in < patternSize && isStar(in)) ++in;
  return in == patternSize;
}

std::u32string charactersOf(std::string_view text) {
  std::u32string characters;
  while (!text.empty()) characters.push_back(takeCodePoint(text));
  return characters;
}

bool partFits(std::string_view pattern, std::string_view part) {
  return fitsPattern(
      pattern.size(), part.size(), [pattern](std::size_t in) { return pattern[in] == '*'; },
      [pattern, part](std::size_t in, std::size_t at) { return pattern[in] == '?' || pattern[in] == part[at]; });
}

}  // namespace

bool fitsWildcards(std::string_view pattern, std::string_view text) {
  if (pattern.find_first_of("*?") == pattern.npos) return pattern == text;
  const std::u32string wanted = charactersOf(pattern);
  const std::u32string found = charactersOf(text);
  return fitsPattern(
      wanted.size(), found.size(), [&wanted](std::size_t in) { return wanted[in] == U'*'; },
      [&](std::size_t in, std::size_t at) { return wanted[in] == U'?' || wanted[in] == found[at]; });
}

PathGlobs::PathGlobs(const std::vector<std::string>& patterns) {
  for (const std::string& pattern : patterns) {
    Parts parts;
    for (const std::string_view part : split(pattern, '/')) {
      if (!part.empty() && part != ".") parts.emplace_back(part);
    }
    if (!parts.empty()) m_patterns.push_back(std::move(parts));
  }
}

bool PathGlobs::take(std::string_view path) const {
  if (m_patterns.empty()) return false;
  const std::vector<std::string_view> parts = split(path, '/');
  return std::any_of(m_patterns.begin(), m_patterns.end(), [&parts](const Parts& pattern) {
    for (std::size_t size = 1; size <= parts.size(); ++size) {
      const bool fits = fitsPattern(
          pattern.size(), size, [&pattern](std::size_t in) { return pattern[in] == "**"; },
          [&pattern, &parts](std::size_t in, std::size_t at) { return partFits(pattern[in], parts[at]); });
      if (fits) return true;
    }
    return false;
  });
}

}  // namespace glossmill
