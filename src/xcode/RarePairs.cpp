#include "xcode/RarePairs.h"

#include <algorithm>
#include <array>
#include <bit>

#include "text/ByteBlock.h"
#include "xcode/RareBytes.h"

namespace glossmill {

RarePairs::RarePairs(const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    if (knows(name)) continue;
    const Pair pair = pairOf(name);
    m_pairs.push_back(pair);
    m_farthest = std::max(m_farthest, pair.distance);
    if (!areFew()) return;
  }
}

/// Says whether a pair of another name stands in this one too.
bool RarePairs::knows(std::string_view name) const {
  for (std::size_t at = 0; at < name.size(); ++at) {
    if (standsAt(name, at)) return true;
  }
  return false;
}

/// Of equally seldom pairs the closest, which is the likeliest to stand in other names too.
RarePairs::Pair RarePairs::pairOf(std::string_view name) {
  Pair best{name.front(), name.front(), 0};
  std::size_t bestRarity = 0;
  for (std::size_t distance = 1; distance < std::min(ByteBlock::kSize, name.size()); ++distance) {
    for (std::size_t at = 0; at + distance < name.size(); ++at) {
      const std::size_t rarity = rarityOf(name[at]) + rarityOf(name[at + distance]);
      if (rarity <= bestRarity) continue;
      best = {name[at], name[at + distance], distance};
      bestRarity = rarity;
    }
  }
  return best;
}

std::size_t RarePairs::next(std::string_view text, std::size_t at) const {
  switch (m_pairs.size()) {
    case 0:
      return text.size();
    case 1:
      return nextOf<1>(text, at);
    case 2:
      return nextOf<2>(text, at);
    case 3:
      return nextOf<3>(text, at);
    default:
      return nextOf<kMost>(text, at);
  }
}

template <std::size_t kCount>
std::size_t RarePairs::nextOf(std::string_view text, std::size_t at) const {
  std::array<Pair, kCount> pairs;
  std::copy_n(m_pairs.begin(), kCount, pairs.begin());
  for (; at + m_farthest + ByteBlock::kSize <= text.size(); at += ByteBlock::kSize) {
    const char* here = text.data() + at;
    ByteBlock::Mask hits = 0;
    for (const Pair& pair : pairs) {
      hits |= ByteBlock(here).equal(pair.first) & ByteBlock(here + pair.distance).equal(pair.second);
    }
    if (hits != 0) return at + static_cast<std::size_t>(std::countr_zero(hits));
  }
  while (at < text.size() && !standsAt(text, at)) ++at;
  return std::min(at, text.size());
}

bool RarePairs::standsAt(std::string_view text, std::size_t at) const {
  return std::any_of(m_pairs.begin(), m_pairs.end(), [text, at](const Pair& pair) {
    return at + pair.distance < text.size() && text[at] == pair.first && text[at + pair.distance] == pair.second;
  });
}

}  // namespace glossmill
