#include <gtest/gtest.h>

#include <set>

#include "text/EightBitEncodings.h"

namespace glossmill {
namespace {

constexpr EightBitEncoding kEightBitEncodings[] = {EightBitEncoding::Ascii,    EightBitEncoding::Latin1,
                                                   EightBitEncoding::Latin2,   EightBitEncoding::Windows1252,
                                                   EightBitEncoding::MacRoman, EightBitEncoding::NextStep};

TEST(EightBitEncodings, EveryByteThatIsACharacterIsWrittenAsItWasRead) {
  for (const EightBitEncoding encoding : kEightBitEncodings) {
    std::set<char32_t> characters;
    for (unsigned byte = 0; byte <= 0xFF; ++byte) {
      const std::optional<char32_t> character = characterOfByte(encoding, static_cast<unsigned char>(byte));
      if (!character) continue;
      EXPECT_EQ(byteOfCharacter(encoding, *character), byte);
      EXPECT_TRUE(characters.insert(*character).second) << byte;
    }
  }
}

TEST(EightBitEncodings, TheLowerHalfIsAscii) {
  for (const EightBitEncoding encoding : kEightBitEncodings) {
    for (unsigned char byte = 0; byte < 0x80; ++byte) EXPECT_EQ(characterOfByte(encoding, byte), byte);
  }
}

TEST(EightBitEncodings, ReadTheUpperHalfEachInItsOwnWay) {
  EXPECT_EQ(characterOfByte(EightBitEncoding::Ascii, 0xE4), std::nullopt);
  EXPECT_EQ(characterOfByte(EightBitEncoding::Latin1, 0xE4), U'ä');
  EXPECT_EQ(characterOfByte(EightBitEncoding::Latin1, 0x85), U'\u0085');
  EXPECT_EQ(characterOfByte(EightBitEncoding::Latin2, 0xB3), U'ł');
  EXPECT_EQ(characterOfByte(EightBitEncoding::Windows1252, 0x80), U'€');
  EXPECT_EQ(characterOfByte(EightBitEncoding::Windows1252, 0x81), std::nullopt);
  EXPECT_EQ(characterOfByte(EightBitEncoding::MacRoman, 0x8A), U'ä');
  EXPECT_EQ(characterOfByte(EightBitEncoding::MacRoman, 0xD2), U'“');
  EXPECT_EQ(characterOfByte(EightBitEncoding::NextStep, 0xD9), U'ä');
  EXPECT_EQ(characterOfByte(EightBitEncoding::NextStep, 0xBA), U'”');
  EXPECT_EQ(characterOfByte(EightBitEncoding::NextStep, 0xFE), std::nullopt);
}

TEST(EightBitEncodings, WriteNoCharacterThatTheyLack) {
  EXPECT_EQ(byteOfCharacter(EightBitEncoding::Ascii, U'ä'), std::nullopt);
  EXPECT_EQ(byteOfCharacter(EightBitEncoding::Latin1, U'€'), std::nullopt);
  EXPECT_EQ(byteOfCharacter(EightBitEncoding::MacRoman, U'ж'), std::nullopt);
  EXPECT_EQ(byteOfCharacter(EightBitEncoding::MacRoman, U'\U000100C4'), std::nullopt);
  EXPECT_EQ(byteOfCharacter(EightBitEncoding::Windows1252, U'\uFFFD'), std::nullopt);
}

}  // namespace
}  // namespace glossmill
