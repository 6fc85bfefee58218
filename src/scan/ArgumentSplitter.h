#pragma once

#include <cstddef>
#include <string_view>
#include <variant>

#include "model/ScanEvents.h"
#include "model/SourceString.h"
#include "scan/ForwardSearch.h"

namespace glossmill {

/// Takes the two literals out of argument texts. Each step has a search of its own: the questions of one step go
/// forwards from call to call, which keeps nested calls linear.
class ArgumentSplitter {
 public:
  explicit ArgumentSplitter(std::string_view text)
      : m_text(text),
        m_keyAt(text, '@'),
        m_keyOpen(text, '"'),
        m_keyClose(text, '"'),
        m_comma(text, ','),
        m_commentAt(text, '@'),
        m_commentOpen(text, '"'),
        m_commentClose(text, '"') {}

  /// The parentheses stand at `open` and `close`; each is the length of the text when it is missing. From call to call
  /// `open` never falls.
  std::variant<SourceString, CallRejection> split(std::size_t open, std::size_t close);

 private:
  std::string_view m_text;
  ForwardSearch m_keyAt;
  ForwardSearch m_keyOpen;
  ForwardSearch m_keyClose;
  ForwardSearch m_comma;
  ForwardSearch m_commentAt;
  ForwardSearch m_commentOpen;
  ForwardSearch m_commentClose;
};

}  // namespace glossmill
