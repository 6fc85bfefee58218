#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace glossmill {

/// A fingerprint of bytes, to find out whether a file was touched. Made for speed, not against forgery: who keeps equal
/// contents once compares the bytes too.
struct ContentHash {
  std::uint64_t high = 0;
  std::uint64_t low = 0;

  bool operator==(const ContentHash&) const = default;
  /// 32 hexadecimal digits.
  std::string text() const;
  static std::optional<ContentHash> fromText(std::string_view text);
};

/// Takes the bytes piece by piece, cut anywhere.
class ContentHasher {
 public:
  void add(std::string_view bytes);
  /// Of all bytes so far; no bytes have a hash of their own.
  ContentHash finish() const;

 private:
  static constexpr std::size_t kLanes = 4;
  static constexpr std::size_t kBlock = kLanes * sizeof(std::uint64_t);

  void addBlock(const char* at);

  std::array<std::uint64_t, kLanes> m_lanes = {0x243F6A8885A308D3, 0x13198A2E03707344, 0xA4093822299F31D0,
                                               0x082EFA98EC4E6C89};
  std::array<char, kBlock> m_rest{};  ///< what does not fill a block yet
  std::size_t m_restLength = 0;
  std::uint64_t m_length = 0;
};

ContentHash contentHashOf(std::string_view bytes);

}  // namespace glossmill
