#pragma once

#include <string>
#include <string_view>

#include "support/Utf16Text.h"

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

  bool m_inString = false;
  bool m_inBlockComment = false;
  bool m_inLineComment = false;
};

}  // namespace glossmill
