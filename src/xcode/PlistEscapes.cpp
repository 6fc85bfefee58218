#include "xcode/PlistEscapes.h"

#include <algorithm>
#include <utility>

#include "text/ByteSearch.h"
#include "text/EightBitEncodings.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

constexpr char32_t kLineSeparator = 0x2028;
constexpr char32_t kParagraphSeparator = 0x2029;

int hexDigit(char character) {
  if (character >= '0' && character <= '9') return character - '0';
  const char lower = static_cast<char>(character | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

bool isOctalDigit(char character) {
  return character >= '0' && character <= '7';
}

/// The character that a letter behind a backslash stands for; the letter itself when it has no meaning.
char namedCharacter(char letter) {
  constexpr std::string_view kLetters = "abfnrtv";
  constexpr std::string_view kMeanings = "\a\b\f\n\r\t\v";
  const std::size_t place = kLetters.find(letter);
  return place == std::string_view::npos ? letter : kMeanings[place];
}

/// The letter that stands for a character behind a backslash, 0 when there is none.
char letterFor(char32_t character) {
  constexpr std::string_view kLetters = "abtnvfr";
  return character >= '\a' && character <= '\r' ? kLetters[character - '\a'] : '\0';
}

/// Puts together what escapes and the text between them give.
class Unescaper {
 public:
  std::string take(std::string_view raw) {
    while (!raw.empty()) {
      const std::size_t backslash = findByte(raw, '\\', 0);
      putText(raw.substr(0, backslash));
      raw.remove_prefix(std::min(backslash + 1, raw.size()));
      if (!raw.empty()) takeEscape(raw);
    }
    dropHighSurrogate();
    return std::move(m_value);
  }

 private:
  /// `raw` begins behind the backslash.
  void takeEscape(std::string_view& raw) {
    const char letter = raw.front();
    if (isOctalDigit(letter)) {
      takeOctal(raw);
    } else if (letter == 'U') {
      raw.remove_prefix(1);
      takeUnit(raw);
    } else {
      const char meaning = namedCharacter(letter);
      // The first byte of a longer character has no meaning of its own, so the others follow it as text.
      putText({&meaning, 1});
      raw.remove_prefix(1);
    }
  }

  void takeOctal(std::string_view& raw) {
    unsigned number = 0;
    for (int digits = 0; digits < 3 && !raw.empty() && isOctalDigit(raw.front()); ++digits) {
      number = number * 8 + static_cast<unsigned>(raw.front() - '0');
      raw.remove_prefix(1);
    }
    const auto byte = static_cast<unsigned char>(number & 0xFF);
    putUnit(characterOfByte(EightBitEncoding::NextStep, byte).value_or(0xFFFD));
  }

  void takeUnit(std::string_view& raw) {
    char32_t unit = 0;
    for (int digits = 0; digits < 4 && !raw.empty() && hexDigit(raw.front()) >= 0; ++digits) {
      unit = unit * 16 + static_cast<char32_t>(hexDigit(raw.front()));
      raw.remove_prefix(1);
    }
    putUnit(unit);
  }

  void putText(std::string_view text) {
    if (text.empty()) return;
    dropHighSurrogate();
    m_value += text;
  }

  void putUnit(char32_t unit) {
    const bool isLow = unit >= 0xDC00 && unit <= 0xDFFF;
    if (isLow && m_high != 0) {
      appendUtf8(m_value, 0x10000 + ((m_high - 0xD800) << 10) + (unit - 0xDC00));
      m_high = 0;
      return;
    }
    dropHighSurrogate();
    if (unit >= 0xD800 && unit <= 0xDBFF) {
      m_high = unit;
    } else if (isLow) {
      m_value += kReplacementCharacter;
    } else {
      appendUtf8(m_value, unit);
    }
  }

  void dropHighSurrogate() {
    if (m_high != 0) m_value += kReplacementCharacter;
    m_high = 0;
  }

  std::string m_value;
  char32_t m_high = 0;  ///< the first half of a surrogate pair that waits for its second
};

bool isControl(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == kLineSeparator ||
         character == kParagraphSeparator;
}

void appendEscapedControl(std::string& text, char32_t character) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  text += '\\';
  if (const char letter = letterFor(character)) {
    text += letter;
    return;
  }
  text += 'U';
  for (int shift = 12; shift >= 0; shift -= 4) text += kDigits[character >> shift & 0xF];
}

}  // namespace

std::string unescapePlist(std::string_view raw) {
  return Unescaper().take(raw);
}

std::string escapePlist(std::string_view value, char quote) {
  std::string text;
  text.reserve(value.size());
  while (!value.empty()) {
    const std::string_view before = value;
    const char32_t character = takeCodePoint(value);
    if (isControl(character)) {
      appendEscapedControl(text, character);
      continue;
    }
    if (before.front() == '\\' || before.front() == quote) text += '\\';
    text += before.substr(0, before.size() - value.size());
  }
  return text;
}

}  // namespace glossmill
