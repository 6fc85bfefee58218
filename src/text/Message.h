#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "text/Format.h"

namespace glossmill {

/// A message for a log before it is written: a text as it stands, or a format with what fills its places. Whoever keeps
/// or shows it makes the text, where the text is to stay; who needs none makes none. It refers to what it was made of,
/// so it is an argument and nothing else.
class Message {
 public:
  Message(std::string_view text) : m_text(text) {}
  Message(const std::string& text) : m_text(text) {}
  Message(const char* text) : m_text(text) {}
  Message(std::string_view format, std::initializer_list<FormatArgument> arguments)
      : m_text(format), m_arguments(arguments), m_isFormat(true) {}

  /// `Text` is std::string or GrowingText.
  template <typename Text>
  void appendTo(Text& text) const {
    if (m_isFormat) {
      appendFormatted(text, m_text, m_arguments);
    } else {
      text.append(m_text);
    }
  }
  std::string text() const {
    std::string text;
    appendTo(text);
    return text;
  }

 private:
  std::string_view m_text;
  std::initializer_list<FormatArgument> m_arguments;
  bool m_isFormat = false;
};

}  // namespace glossmill
