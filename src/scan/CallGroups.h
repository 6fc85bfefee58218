#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/CancelFlag.h"
#include "scan/CallFinder.h"

namespace glossmill {

/// Where a call's name begins and where its parentheses are; the length of the text for one that is missing.
struct CallPlaces {
  std::size_t name = 0;
  std::size_t open = 0;
  std::size_t close = 0;
  bool operator==(const CallPlaces&) const = default;
};

/// Goes through the calls of a text group by group: a call, and those whose "(" lies before its ")". Parentheses count
/// everywhere, also inside string literals (rule 14). All the groups together cost one pass, however calls are nested,
/// and a group costs nothing behind its end.
class CallGroups {
 public:
  explicit CallGroups(std::string_view text) : m_text(text), m_finder(text) {}

  /// Finds the first call of the next group; false when there is none.
  bool next();
  /// Finds the others and all parentheses. False when it was canceled: then some may be missing.
  bool balance(const CancelFlag& canceled);
  /// Those of the group, in the order of their names.
  const std::vector<CallPlaces>& calls() const { return m_calls; }

 private:
  /// A call whose "(" is still open.
  struct OpenCall {
    std::size_t index;         ///< in m_calls
    std::int64_t depthBefore;  ///< count of parentheses before it
  };

  void add(std::size_t name) { m_calls.push_back({name, m_text.size(), m_text.size()}); }
  void openParenthesis();
  void closeParenthesis();

  std::string_view m_text;
  CallFinder m_finder;
  std::vector<CallPlaces> m_calls;
  std::size_t m_opened = 0;  ///< so many of them have met their "("
  std::vector<OpenCall> m_open;
  std::size_t m_at = 0;  ///< of the next character that is looked at for parentheses
  std::int64_t m_depth = 0;
};

}  // namespace glossmill
