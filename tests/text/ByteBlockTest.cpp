#include <gtest/gtest.h>

#include <array>
#include <cstddef>

#include "text/ByteBlock.h"

namespace glossmill {
namespace {

using Bytes = std::array<char, ByteBlock::kSize>;

char byteOf(unsigned value) {
  return static_cast<char>(static_cast<unsigned char>(value));
}

/// One byte among others at every place: the mask has its bit alone.
template <typename Ask>
void expectOneBit(char filler, char byte, Ask ask) {
  for (std::size_t place = 0; place < ByteBlock::kSize; ++place) {
    Bytes bytes;
    bytes.fill(filler);
    bytes[place] = byte;
    EXPECT_EQ(ask(ByteBlock(bytes.data())), ByteBlock::Mask{1} << place);
  }
}

template <typename Ask>
ByteBlock::Mask askAll(char filler, Ask ask) {
  Bytes bytes;
  bytes.fill(filler);
  return ask(ByteBlock(bytes.data()));
}

constexpr ByteBlock::Mask kAll = 0xFFFF;

TEST(ByteBlock, FindsEitherOfTwoBytesAtEveryPlace) {
  const auto ask = [](const ByteBlock& block) { return block.equalEither('"', '\n'); };
  expectOneBit('!', '"', ask);
  expectOneBit('\x0B', '\n', ask);
  EXPECT_EQ(askAll('!', ask), ByteBlock::Mask{0});
  EXPECT_EQ(askAll('"', ask), kAll);
  EXPECT_EQ(askAll('\n', ask), kAll);
}

TEST(ByteBlock, FindsAByteAtEveryPlace) {
  for (unsigned value = 0; value < 0x100; ++value) {
    const char byte = byteOf(value);
    const auto ask = [byte](const ByteBlock& block) { return block.equal(byte); };
    expectOneBit(byteOf(value + 1), byte, ask);
    EXPECT_EQ(askAll(byte, ask), kAll);
    EXPECT_EQ(askAll(byteOf(value ^ 0x80), ask), 0U);
  }
}

TEST(ByteBlock, FindsALetterInEitherCase) {
  const auto ask = [](const ByteBlock& block) { return block.equalLetter('n'); };
  expectOneBit('m', 'n', ask);
  expectOneBit('O', 'N', ask);
  for (unsigned value = 0; value < 0x100; ++value) {
    const char byte = byteOf(value);
    EXPECT_EQ(askAll(byte, ask), byte == 'n' || byte == 'N' ? kAll : 0U) << value;
  }
}

TEST(ByteBlock, FindsBytesThatAreNotAscii) {
  const auto ask = [](const ByteBlock& block) { return block.notAscii(); };
  expectOneBit('\x7F', '\x80', ask);
  for (unsigned value = 0; value < 0x100; ++value) EXPECT_EQ(askAll(byteOf(value), ask), value < 0x80 ? 0U : kAll);
}

TEST(ByteBlock, NeedsNoAlignment) {
  std::array<char, 4 * ByteBlock::kSize> bytes;
  bytes.fill('a');
  bytes[20] = '"';
  for (std::size_t start = 5; start <= 20; ++start) {
    EXPECT_EQ(ByteBlock(bytes.data() + start).equal('"'), ByteBlock::Mask{1} << (20 - start));
  }
}

}  // namespace
}  // namespace glossmill
