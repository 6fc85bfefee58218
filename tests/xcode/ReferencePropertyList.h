#pragma once

#include <cstddef>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "support/Utf16Text.h"
#include "text/EightBitEncodings.h"
#include "text/Utf8.h"
#include "xcode/PlistEscapes.h"

namespace glossmill {

/// The old property list syntax character by character, as plainly as it can be written. Gives what `printed` gives, or
/// nothing when the text is not correct.
class ReferencePropertyList {
 public:
  static std::optional<std::string> read(std::string_view text) {
    ReferencePropertyList reader(text);
    while (reader.take("\uFEFF")) {
    }
    const std::optional<std::string> value = reader.value(0);
    if (!value || !reader.gap() || !reader.m_text.empty()) return std::nullopt;
    return value;
  }

 private:
  static constexpr int kMostLevels = 512;

  explicit ReferencePropertyList(std::string_view text) : m_text(text) {}

  bool take(std::string_view mark) {
    if (!m_text.starts_with(mark)) return false;
    m_text.remove_prefix(mark.size());
    return true;
  }

  bool takeSpace() {
    for (const std::string_view space : {" ", "\t", "\n", "\v", "\f", "\r", "\u2028", "\u2029"}) {
      if (take(space)) return true;
    }
    return false;
  }

  bool atLineEnd() const {
    for (const std::string_view end : {"\n", "\r", "\u2028", "\u2029"}) {
      if (m_text.starts_with(end)) return true;
    }
    return m_text.empty();
  }

  /// False for a comment that is not closed.
  bool gap() {
    while (true) {
      if (takeSpace()) continue;
      if (take("//")) {
        while (!atLineEnd()) m_text.remove_prefix(1);
      } else if (take("/*")) {
        while (!take("*/")) {
          m_failed = m_text.empty();
          if (m_failed) return false;
          m_text.remove_prefix(1);
        }
      } else {
        return true;
      }
    }
  }

  std::optional<std::string> value(int level) {
    if (!gap()) return std::nullopt;
    if (m_text.starts_with('{') || m_text.starts_with('(')) {
      if (level == kMostLevels) return std::nullopt;
      return take("{") ? dictionary(level) : (take("("), array(level));
    }
    return take("<") ? data() : text();
  }

  std::optional<std::string> dictionary(int level) {
    std::string all = "{";
    while (gap() && !take("}")) {
      const std::optional<std::string> key = text();
      if (!key || !gap()) return std::nullopt;
      std::optional<std::string> inside = key;
      if (!m_text.starts_with(';')) {
        inside = take("=") ? value(level + 1) : std::nullopt;
        if (!inside || !gap()) return std::nullopt;
      }
      if (!take(";") && !m_text.starts_with('}')) return std::nullopt;
      all += *key + "=" + *inside + ";";
    }
    return m_failed ? std::nullopt : std::optional(all + '}');
  }

  std::optional<std::string> array(int level) {
    std::string all = "(";
    while (gap() && !take(")")) {
      const std::optional<std::string> inside = value(level + 1);
      if (!inside || !gap()) return std::nullopt;
      if (!take(",") && !m_text.starts_with(')')) return std::nullopt;
      all += *inside + ",";
    }
    return m_failed ? std::nullopt : std::optional(all + ')');
  }

  std::optional<std::string> data() {
    std::string all = "<";
    while (!m_text.empty() && std::string_view("0123456789abcdefABCDEF \t\n\v\f\r").find(m_text[0]) != m_text.npos) {
      all += m_text[0];
      m_text.remove_prefix(1);
    }
    return take(">") ? std::optional(all + '>') : std::nullopt;
  }

  std::optional<std::string> text() {
    if (m_text.empty()) return std::nullopt;
    const char first = m_text[0];
    if (first == '"' || first == '\'') return quoted(first);
    std::string word;
    while (!m_text.empty() && isBare(m_text[0])) {
      word += m_text[0];
      m_text.remove_prefix(1);
    }
    return word.empty() ? std::nullopt : std::optional('"' + word + '"');
  }

  static bool isBare(char byte) {
    return std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_$./:-").find(byte) !=
           std::string_view::npos;
  }

  std::optional<std::string> quoted(char quote) {
    m_text.remove_prefix(1);
    std::u16string units;
    while (!m_text.empty() && m_text[0] != quote) {
      if (take("\\")) {
        if (m_text.empty() || !escape(units)) return std::nullopt;
      } else {
        character(units);
      }
    }
    if (m_text.empty()) return std::nullopt;
    m_text.remove_prefix(1);
    return '"' + escapePlist(toUtf8(units), '"') + '"';
  }

  void character(std::u16string& units) {
    const char32_t codePoint = takeCodePoint(m_text);
    if (codePoint > 0xFFFF) units += static_cast<char16_t>(0xD800 + ((codePoint - 0x10000) >> 10));
    units += static_cast<char16_t>(codePoint > 0xFFFF ? 0xDC00 + (codePoint & 0x3FF) : codePoint);
  }

  bool escape(std::u16string& units) {
    constexpr std::string_view kOctal = "01234567";
    if (kOctal.find(m_text[0]) != kOctal.npos) {
      const std::string digits = takeDigits(kOctal, 3);
      const auto byte = static_cast<unsigned char>(std::strtoul(digits.c_str(), nullptr, 8) & 0xFF);
      units += static_cast<char16_t>(characterOfByte(EightBitEncoding::NextStep, byte).value_or(0xFFFD));
      return true;
    }
    if (take("U")) {
      const std::string digits = takeDigits("0123456789abcdefABCDEF", 4);
      units += static_cast<char16_t>(std::strtoul(digits.c_str(), nullptr, 16));
      return true;
    }
    const char letter = m_text[0];
    character(units);
    if (letter == 'a') units.back() = '\a';
    if (letter == 'b') units.back() = '\b';
    if (letter == 'f') units.back() = '\f';
    if (letter == 'n') units.back() = '\n';
    if (letter == 'r') units.back() = '\r';
    if (letter == 't') units.back() = '\t';
    if (letter == 'v') units.back() = '\v';
    return true;
  }

  std::string takeDigits(std::string_view allowed, std::size_t most) {
    std::string digits;
    while (digits.size() < most && !m_text.empty() && allowed.find(m_text[0]) != allowed.npos) {
      digits += m_text[0];
      m_text.remove_prefix(1);
    }
    return digits;
  }

  std::string_view m_text;
  bool m_failed = false;
};

}  // namespace glossmill
