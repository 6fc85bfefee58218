#include "xcode/RareGrams.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "xcode/RareBytes.h"

namespace glossmill {

namespace {

constexpr std::size_t kLongestGram = sizeof(std::uint32_t);
constexpr std::size_t kLongestStride = 6;
constexpr std::size_t kFewestSlots = 4096;
constexpr std::size_t kMostSlots = std::size_t{1} << 20;
constexpr std::size_t kSlotsOfName = 64;  // most of them stay empty

std::size_t shortestOf(const std::vector<std::string>& names) {
  const auto isShorter = [](const std::string& a, const std::string& b) { return a.size() < b.size(); };
  return std::min_element(names.begin(), names.end(), isShorter)->size();
}

}  // namespace

RareGrams::RareGrams(const std::vector<std::string>& names) {
  const std::size_t shortest = shortestOf(names);
  m_gramLength = std::min(kLongestGram, shortest);
  m_stride = std::min(kLongestStride, shortest - m_gramLength + 1);
  constexpr char kOnes[kLongestGram] = {'\xFF', '\xFF', '\xFF', '\xFF'};
  std::memcpy(&m_gramMask, kOnes, m_gramLength);
  m_known.resize(std::bit_ceil(std::clamp(names.size() * kSlotsOfName, kFewestSlots, kMostSlots)));
  for (const std::string& name : names) add(name);
}

void RareGrams::add(std::string_view name) {
  const std::size_t begin = bestWindow(name);
  for (std::size_t at = begin; at < begin + m_stride; ++at) m_known[slotOf(gramAt(name, at))] = 1;
}

/// Where the neighbouring grams of the name begin that sources hold least often.
std::size_t RareGrams::bestWindow(std::string_view name) const {
  const std::size_t length = m_stride + m_gramLength - 1;
  std::size_t best = 0;
  std::size_t bestRarity = 0;
  for (std::size_t begin = 0; begin + length <= name.size(); ++begin) {
    std::size_t rarity = 0;
    for (const char byte : name.substr(begin, length)) rarity += rarityOf(byte);
    if (rarity <= bestRarity) continue;
    best = begin;
    bestRarity = rarity;
  }
  return best;
}

std::size_t RareGrams::slotOf(std::uint32_t gram) const {
  constexpr std::uint32_t kFactor = 0x9E3779B1;
  return (gram * kFactor >> 8) & (m_known.size() - 1);
}

std::uint32_t RareGrams::gramAt(std::string_view text, std::size_t at) const {
  std::uint32_t gram = 0;
  std::memcpy(&gram, text.data() + at, std::min(kLongestGram, text.size() - at));
  return gram & m_gramMask;
}

std::size_t RareGrams::next(std::string_view text, std::size_t at) const {
  for (; at + kLongestGram <= text.size(); at += m_stride) {
    std::uint32_t gram = 0;
    std::memcpy(&gram, text.data() + at, sizeof gram);
    if (m_known[slotOf(gram & m_gramMask)] != 0) return at;
  }
  for (; at + m_gramLength <= text.size(); at += m_stride) {
    if (m_known[slotOf(gramAt(text, at))] != 0) return at;
  }
  return text.size();
}

}  // namespace glossmill
