#include "xcode/RoutineProposals.h"

#include <algorithm>

#include "xcode/AnyByteSearch.h"
#include "xcode/AppleRoutines.h"
#include "xcode/CLiteral.h"
#include "xcode/SourceText.h"

namespace glossmill {

namespace {

constexpr std::size_t kFewestCalls = 5;

/// The name in front of "(" and the literal whose first quote is at `quote`; empty when it is not so.
std::string_view calledName(std::string_view text, std::size_t quote) {
  std::size_t at = quote;
  if (at > 0 && text[at - 1] == '@') --at;
  while (at > 0 && isBlank(text[at - 1])) --at;
  if (at == 0 || text[at - 1] != '(') return {};
  const std::size_t end = at - 1;
  std::size_t begin = end;
  while (begin > 0 && isWordByte(text[begin - 1])) --begin;
  return text.substr(begin, end - begin);
}

/// The last quote of the literal, or the end of its line.
std::size_t literalEnd(std::string_view text, std::size_t quote) {
  std::size_t at = findAnyOf<'"', '\\', '\n', '\r'>(text, quote + 1);
  while (at < text.size() && text[at] == '\\') at = findAnyOf<'"', '\\', '\n', '\r'>(text, at + 2);
  return std::min(at, text.size());
}

bool isApples(std::string_view name) {
  static const RoutineTable kInC = routinesInC({}, {});
  static const RoutineTable kInSwift = routinesInSwift({});
  return kInC.find(name) || kInSwift.find(name) || name == "String" || name == "CFSTR";
}

}  // namespace

void RoutineProposals::addSource(std::string_view text) {
  std::size_t quote = text.find('"');
  while (quote < text.size()) {
    const std::size_t end = literalEnd(text, quote);
    const std::string_view name = calledName(text, quote);
    if (end < text.size() && text[end] == '"' && !name.empty() && !isDigit(name.front())) {
      const Result<std::string> value = cLiteralValue(text.substr(quote, end + 1 - quote));
      Calls& calls = m_names[std::string(name)];
      const bool isKey = value && m_isKey(value.value());
      ++calls.literal;
      calls.withKey += isKey ? 1 : 0;
      calls.withSecond += isKey && end + 1 < text.size() && text[end + 1] == ',' ? 1 : 0;
    }
    quote = end < text.size() ? text.find('"', end + 1) : end;
  }
}

std::vector<std::string> RoutineProposals::best() const {
  std::vector<std::pair<std::size_t, std::string>> found;
  for (const auto& [name, calls] : m_names) {
    if (calls.withKey < kFewestCalls || calls.withKey * 2 <= calls.literal || isApples(name)) continue;
    const bool hasComment = calls.withSecond * 2 > calls.withKey;
    found.emplace_back(calls.withKey, name + (hasComment ? "(key, comment)" : "(key)"));
  }
  std::sort(found.begin(), found.end(),
            [](const auto& a, const auto& b) { return a.first != b.first ? a.first > b.first : a.second < b.second; });
  std::vector<std::string> routines;
  for (auto& [calls, routine] : found) routines.push_back(std::move(routine));
  return routines;
}

}  // namespace glossmill
