#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "text/Utf8.h"
#include "xcode/XmlText.h"

namespace glossmill {
namespace {

/// What XML 1.0 allows in a text, however it is spelled.
bool xmlHolds(char32_t character) {
  if (character < 0x20) return character == '\t' || character == '\n' || character == '\r';
  return character != 0xFFFE && character != 0xFFFF;
}

TEST(XmlText, EveryCharacterIsReadAsItWasWrittenOrRefused) {
  for (char32_t character = 0; character <= 0x10FFFF && !HasFailure(); ++character) {
    if (character == 0xD800) character = 0xE000;
    std::string value;
    for (const char32_t next : {character, U'1', character}) appendUtf8(value, next);
    const std::optional<std::string> written = escapeXml(value);
    ASSERT_EQ(written.has_value(), xmlHolds(character)) << std::hex << static_cast<std::uint32_t>(character);
    if (!written) continue;
    ASSERT_EQ(unescapeXml(*written), value) << std::hex << static_cast<std::uint32_t>(character);
    ASSERT_EQ(written->find_first_of("<>\r"), std::string::npos);
  }
}

}  // namespace
}  // namespace glossmill
