#include "scan/ParenthesisPairs.h"

#include <cstdint>

#include "text/ByteSearch.h"

namespace glossmill {

namespace {

/// A "(" that somebody asked for and that is still open.
struct OpenCall {
  std::size_t index;         ///< in the list of opens
  std::int64_t depthBefore;  ///< count of parentheses before it
};

}  // namespace

std::vector<std::size_t> closingParentheses(std::string_view text, const std::vector<std::size_t>& opens,
                                            const CancelFlag& canceled) {
  std::vector<std::size_t> closes(opens.size(), text.size());
  std::vector<OpenCall> open;
  std::int64_t depth = 0;
  std::size_t next = 0;
  std::size_t at = 0;
  while (!canceled.isSet()) {
    if (open.empty()) {
      if (next == opens.size()) break;
      at = opens[next];
    }
    at = findEither(text, '(', ')', at);
    if (at == text.size()) break;
    if (text[at] == '(') {
      for (; next < opens.size() && opens[next] == at; ++next) open.push_back({next, depth});
      ++depth;
    } else {
      --depth;
      for (; !open.empty() && open.back().depthBefore == depth; open.pop_back()) closes[open.back().index] = at;
    }
    ++at;
  }
  return closes;
}

}  // namespace glossmill
