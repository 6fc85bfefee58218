#include "text/ContentHash.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace glossmill {

namespace {

constexpr std::uint64_t kStir = 0x9E3779B97F4A7C15;  // odd, so that multiplying by it loses nothing
constexpr int kTurn = 27;
constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr std::size_t kHalfDigits = 16;

/// Spreads each bit of the value over all of them; different values stay different.
std::uint64_t spread(std::uint64_t value) {
  value = (value ^ (value >> 31)) * 0xD6E8FEB86659FD93;
  value = (value ^ (value >> 29)) * 0xA0761D6478BD642F;
  return value ^ (value >> 32);
}

void appendHex(std::uint64_t value, std::string& text) {
  for (int shift = 60; shift >= 0; shift -= 4) text += kHexDigits[(value >> shift) & 0xF];
}

std::optional<std::uint64_t> hexValue(std::string_view digits) {
  std::uint64_t value = 0;
  for (const char digit : digits) {
    const std::size_t place = kHexDigits.find(digit);
    if (place == std::string_view::npos) return std::nullopt;
    value = value << 4 | place;
  }
  return value;
}

}  // namespace

std::string ContentHash::text() const {
  std::string text;
  appendHex(high, text);
  appendHex(low, text);
  return text;
}

std::optional<ContentHash> ContentHash::fromText(std::string_view text) {
  if (text.size() != 2 * kHalfDigits) return std::nullopt;
  const std::optional<std::uint64_t> high = hexValue(text.substr(0, kHalfDigits));
  const std::optional<std::uint64_t> low = hexValue(text.substr(kHalfDigits));
  if (!high || !low) return std::nullopt;
  return ContentHash{*high, *low};
}

/// Each step can be undone for a known word, so that a single difference is never lost in a lane.
void ContentHasher::addBlock(const char* at) {
  for (std::size_t lane = 0; lane < kLanes; ++lane) {
    std::uint64_t word = 0;
    std::memcpy(&word, at + lane * sizeof word, sizeof word);
    m_lanes[lane] = std::rotl((m_lanes[lane] ^ word) * kStir, kTurn);
  }
}

void ContentHasher::add(std::string_view bytes) {
  m_length += bytes.size();
  if (m_restLength != 0) {
    const std::size_t taken = bytes.copy(m_rest.data() + m_restLength, kBlock - m_restLength);
    m_restLength += taken;
    bytes.remove_prefix(taken);
    if (m_restLength < kBlock) return;
    addBlock(m_rest.data());
    m_restLength = 0;
  }
  for (; bytes.size() >= kBlock; bytes.remove_prefix(kBlock)) addBlock(bytes.data());
  m_restLength = bytes.copy(m_rest.data(), kBlock);
}

ContentHash ContentHasher::finish() const {
  ContentHasher padded = *this;
  std::fill(padded.m_rest.begin() + static_cast<std::ptrdiff_t>(m_restLength), padded.m_rest.end(), '\0');
  padded.addBlock(padded.m_rest.data());
  ContentHash hash{spread(m_length), spread(~m_length)};
  for (const std::uint64_t lane : padded.m_lanes) {
    hash.high = spread(hash.high * kStir ^ lane);
    hash.low = spread(std::rotl(hash.low, kTurn) ^ spread(lane));
  }
  return hash;
}

ContentHash contentHashOf(std::string_view bytes) {
  ContentHasher hasher;
  hasher.add(bytes);
  return hasher.finish();
}

}  // namespace glossmill
