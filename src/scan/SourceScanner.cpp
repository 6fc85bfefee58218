#include "scan/SourceScanner.h"

#include <variant>

#include "scan/CallSearch.h"
#include "scan/ForwardSearch.h"
#include "scan/ParenthesisPairs.h"
#include "text/Utf16.h"

namespace glossmill {

namespace {

constexpr std::size_t kExcerptUnits = 80;

/// Where the calls of a text begin, and where the first "(" after each of them is.
struct Calls {
  std::vector<std::size_t> starts;
  std::vector<std::size_t> opens;  ///< the length of the text where there is none
};

Calls findCalls(std::string_view text, const CancelFlag& canceled) {
  Calls calls;
  ForwardSearch parenthesis(text, '(');
  std::size_t at = findLocalizedStringCall(text, 0);
  while (at < text.size() && !canceled.isSet()) {
    calls.starts.push_back(at);
    calls.opens.push_back(parenthesis.next(at));
    at = findLocalizedStringCall(text, at + 1);
  }
  return calls;
}

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

  /// The argument text runs from `open` to `close`, which is the length of the text for an unbalanced call.
  std::variant<SourceString, CallRejection> split(std::size_t open, std::size_t close) {
    if (open == m_text.size()) return CallRejection::NoParenthesis;
    if (close == m_text.size()) return CallRejection::Unbalanced;
    const std::size_t keyStart = m_keyOpen.next(m_keyAt.next(open)) + 1;
    if (keyStart > close) return CallRejection::NoKey;
    const std::size_t keyEnd = m_keyClose.next(keyStart);
    if (keyEnd > close) return CallRejection::UnclosedKey;
    const std::size_t comma = m_comma.next(keyEnd + 1);
    if (comma > close) return CallRejection::NoComma;
    const std::size_t commentStart = m_commentOpen.next(m_commentAt.next(comma + 1)) + 1;
    if (commentStart > close) return CallRejection::NoComment;
    const std::size_t commentEnd = m_commentClose.next(commentStart);
    if (commentEnd > close) return CallRejection::UnclosedComment;
    return SourceString{m_text.substr(keyStart, keyEnd - keyStart),
                        m_text.substr(commentStart, commentEnd - commentStart)};
  }

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

}  // namespace

SourceScan scanSource(std::string_view text, const CancelFlag& canceled, const RejectedCallSink& rejected) {
  const Calls calls = findCalls(text, canceled);
  const std::vector<std::size_t> closes = closingParentheses(text, calls.opens, canceled);
  SourceScan scan;
  ArgumentSplitter splitter(text);
  for (std::size_t call = 0; call < calls.starts.size() && !canceled.isSet(); ++call) {
    const auto found = splitter.split(calls.opens[call], closes[call]);
    if (const auto* string = std::get_if<SourceString>(&found)) {
      scan.strings.push_back(*string);
    } else {
      rejected(clipUtf16(text.substr(calls.starts[call]), kExcerptUnits), std::get<CallRejection>(found));
    }
  }
  scan.canceled = canceled.isSet();
  return scan;
}

}  // namespace glossmill
