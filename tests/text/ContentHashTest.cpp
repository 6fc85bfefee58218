#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>

#include "text/ContentHash.h"

namespace glossmill {
namespace {

std::string randomBytes(std::mt19937& random, std::size_t length) {
  std::string bytes(length, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random() & 0xFF);
  return bytes;
}

TEST(ContentHash, PiecesGiveTheHashOfTheWhole) {
  std::mt19937 random(11);
  for (int round = 0; round < 300; ++round) {
    const std::string bytes = randomBytes(random, random() % 200);
    ContentHasher hasher;
    for (std::size_t at = 0; at < bytes.size();) {
      const std::size_t length = std::min<std::size_t>(random() % 50, bytes.size() - at);
      hasher.add(std::string_view(bytes).substr(at, length));
      at += length;
    }
    EXPECT_EQ(hasher.finish(), contentHashOf(bytes)) << round;
  }
}

TEST(ContentHash, EveryChangedByteShowsWhereverItStands) {
  std::mt19937 random(12);
  std::string bytes = randomBytes(random, 100);
  const ContentHash before = contentHashOf(bytes);
  for (char& byte : bytes) {
    byte = static_cast<char>(byte ^ 1);
    EXPECT_NE(contentHashOf(bytes), before);
    byte = static_cast<char>(byte ^ 1);
  }
}

TEST(ContentHash, ZerosAtTheEndCount) {
  std::set<std::string> seen;
  for (std::size_t length = 0; length < 100; ++length) {
    EXPECT_TRUE(seen.insert(contentHashOf(std::string(length, '\0')).text()).second) << length;
  }
}

TEST(ContentHash, TextLeadsBackToTheHash) {
  const ContentHash hash = contentHashOf("Harbour");
  EXPECT_EQ(hash.text().size(), 32U);
  EXPECT_EQ(ContentHash::fromText(hash.text()), hash);
}

TEST(ContentHash, NoOtherTextIsAHash) {
  EXPECT_EQ(ContentHash::fromText(""), std::nullopt);
  EXPECT_EQ(ContentHash::fromText("0123456789abcdef0123456789abcde"), std::nullopt);
  EXPECT_EQ(ContentHash::fromText("0123456789abcdef0123456789abcdeg"), std::nullopt);
  EXPECT_EQ(ContentHash::fromText("0123456789ABCDEF0123456789abcdef"), std::nullopt);
}

}  // namespace
}  // namespace glossmill
