#include "text/CharacterKinds.h"

#include <algorithm>
#include <iterator>

namespace glossmill {

namespace {

struct Stretch {
  char32_t first;
  char32_t last;
};

constexpr Stretch kBlanks[] = {{0x09, 0x0D},     {0x20, 0x20},     {0x85, 0x85},     {0xA0, 0xA0},
                               {0x1680, 0x1680}, {0x2000, 0x200A}, {0x2028, 0x2029}, {0x202F, 0x202F},
                               {0x205F, 0x205F}, {0x3000, 0x3000}};

// Beyond ASCII: signs of Latin-1, punctuation, currencies, arrows and other symbols, ideographic and full-width signs.
constexpr Stretch kSigns[] = {{0x80, 0xA9},     {0xAB, 0xB4},     {0xB6, 0xB9},     {0xBB, 0xBF},     {0xD7, 0xD7},
                              {0xF7, 0xF7},     {0x60C, 0x60C},   {0x61B, 0x61B},   {0x61F, 0x61F},   {0x66A, 0x66D},
                              {0x6D4, 0x6D4},   {0x1680, 0x1680}, {0x2000, 0x206F}, {0x20A0, 0x20CF}, {0x2190, 0x2BFF},
                              {0x3000, 0x3004}, {0x3008, 0x3020}, {0xFE30, 0xFE4F}, {0xFF01, 0xFF0F}, {0xFF1A, 0xFF20},
                              {0xFF3B, 0xFF40}, {0xFF5B, 0xFF65}, {0xFFFC, 0xFFFD}};

template <typename Stretches>
bool isIn(const Stretches& stretches, char32_t character) {
  return std::any_of(std::begin(stretches), std::end(stretches),
                     [character](Stretch it) { return it.first <= character && character <= it.last; });
}

}  // namespace

bool isWordCharacter(char32_t character) {
  if (character < 0x80) {
    const char32_t lower = character | 0x20;
    return (lower >= 'a' && lower <= 'z') || (character >= '0' && character <= '9') || character == '_';
  }
  return !isIn(kSigns, character);
}

bool isBlankCharacter(char32_t character) {
  return isIn(kBlanks, character);
}

}  // namespace glossmill
