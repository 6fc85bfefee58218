#pragma once

#include <optional>

namespace glossmill {

/// Encodings of one byte a character; the lower half of each is ASCII. NextStep is what octal escapes of property lists
/// are written in.
enum class EightBitEncoding { Ascii, Latin1, Latin2, Windows1252, MacRoman, NextStep };

/// Nothing for a byte that stands for no character.
std::optional<char32_t> characterOfByte(EightBitEncoding encoding, unsigned char byte);

/// Nothing for a character that the encoding lacks.
std::optional<unsigned char> byteOfCharacter(EightBitEncoding encoding, char32_t character);

}  // namespace glossmill
