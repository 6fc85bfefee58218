#pragma once

#include <string>
#include <string_view>

#include "text/Utf8.h"

namespace glossmill {

/// The rules of comment removal written down as plainly as possible, unit by unit with three flags, as a measure for
/// the quick one.
class ReferenceCommentRemover {
 public:
  static std::string remove(std::string_view text) {
    ReferenceCommentRemover remover;
    return toUtf8(remover.run(toUtf16(text)));
  }

 private:
  std::u16string run(const std::u16string& text) {
    std::u16string output;
    for (std::size_t i = 0; i < text.size(); ++i) {
      const char16_t ch = text[i];
      const bool hasNext = i + 1 < text.size();
      if (ch == u'/' && !m_inString && !m_inBlockComment && !m_inLineComment) {
        if (!hasNext) continue;
        ++i;
        if (text[i] == u'*') m_inBlockComment = true;
        if (text[i] == u'/') m_inLineComment = true;
      } else if (ch == u'\n' && m_inLineComment) {
        m_inLineComment = false;
      } else if (m_inLineComment) {
        continue;
      } else if (ch == u'*' && m_inBlockComment) {
        if (!hasNext) continue;
        ++i;
        if (text[i] == u'/') m_inBlockComment = false;
      } else if (!m_inBlockComment) {
        if (ch == u'"' && m_inString) {
          if (text[i - 1] != u'\\') m_inString = false;
        } else if (ch == u'"') {
          m_inString = true;
        }
        output.push_back(ch);
      }
    }
    return output;
  }

  static std::u16string toUtf16(std::string_view text) {
    std::u16string units;
    while (!text.empty()) {
      const char32_t codePoint = takeCodePoint(text);
      if (codePoint < 0x10000) {
        units.push_back(static_cast<char16_t>(codePoint));
        continue;
      }
      units.push_back(static_cast<char16_t>(0xD800 + ((codePoint - 0x10000) >> 10)));
      units.push_back(static_cast<char16_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF)));
    }
    return units;
  }

  static std::string toUtf8(const std::u16string& units) {
    std::string text;
    for (std::size_t i = 0; i < units.size(); ++i) {
      const char32_t unit = units[i];
      if (unit < 0xD800 || unit > 0xDFFF) {
        appendUtf8(text, unit);
      } else if (unit < 0xDC00 && i + 1 < units.size() && (units[i + 1] & 0xFC00) == 0xDC00) {
        appendUtf8(text, 0x10000 + ((unit - 0xD800) << 10) + (units[i + 1] - 0xDC00U));
        ++i;
      } else {
        text.append(kReplacementCharacter);
      }
    }
    return text;
  }

  bool m_inString = false;
  bool m_inBlockComment = false;
  bool m_inLineComment = false;
};

}  // namespace glossmill
