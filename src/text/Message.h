#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

#include "text/Format.h"

namespace glossmill {

/// A message for a log before it is written: a text as it stands, or a format with what fills its places. Whoever keeps
/// or shows it makes the text, where the text is to stay; who needs none makes none. It refers to what it was made of,
/// so it is an argument and nothing else. What fills a format may be clipped where it is only shown.
class Message {
 public:
  Message(std::string_view text) : m_text(text) {}
  Message(const std::string& text) : m_text(text) {}
  Message(const char* text) : m_text(text) {}
  Message(std::string_view format, std::initializer_list<FormatArgument> arguments)
      : m_text(format), m_arguments(arguments), m_isFormat(true) {}

  /// Shown, each argument is clipped to so many UTF-16 units.
  Message clippedTo(std::size_t units) const {
    Message clipped = *this;
    clipped.m_shownUnits = units;
    return clipped;
  }

  /// `Text` is std::string or GrowingText.
  template <typename Text>
  void appendTo(Text& text) const {
    if (m_isFormat) {
      appendFormatted(text, m_text, m_arguments, kWholeArguments);
    } else {
      text.append(m_text);
    }
  }
  std::string text() const {
    std::string text;
    appendTo(text);
    return text;
  }
  /// For a place where nobody wants to read a very long text.
  std::string shownText() const {
    std::string text;
    if (!m_isFormat) return std::string(m_text);
    appendFormatted(text, m_text, m_arguments, m_shownUnits);
    return text;
  }

 private:
  std::string_view m_text;
  std::initializer_list<FormatArgument> m_arguments;
  bool m_isFormat = false;
  std::size_t m_shownUnits = kWholeArguments;
};

}  // namespace glossmill
