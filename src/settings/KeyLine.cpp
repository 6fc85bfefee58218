#include "settings/KeyLine.h"

#include <algorithm>

namespace glossmill {

namespace {

constexpr std::string_view kWhiteSpace = " \t\r\n";

/// Behind the string whose first quote is at `at`.
std::size_t stringEnd(std::string_view text, std::size_t at) {
  for (++at; at < text.size() && text[at] != '"'; ++at) {
    if (text[at] == '\\') ++at;
  }
  return at + 1;
}

bool isFollowedByColon(std::string_view text, std::size_t at) {
  const std::size_t next = text.find_first_not_of(kWhiteSpace, at);
  return next != std::string_view::npos && text[next] == ':';
}

/// Where the last such key of the outermost object begins.
std::optional<std::size_t> placeOfKey(std::string_view text, std::string_view key) {
  std::optional<std::size_t> found;
  std::size_t depth = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '{' || text[at] == '[') ++depth;
    if (text[at] == '}' || text[at] == ']') --depth;
    if (text[at] != '"') continue;
    const std::size_t end = stringEnd(text, at);
    const bool isKey = depth == 1 && isFollowedByColon(text, end);
    if (isKey && text.substr(at + 1, end - at - 2) == key) found = at;
    at = end - 1;
  }
  return found;
}

}  // namespace

std::size_t lineOfKey(std::string_view text, std::string_view key) {
  const std::string_view before = text.substr(0, placeOfKey(text, key).value_or(0));
  return 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

std::optional<ScalarPlace> scalarOfKey(std::string_view text, std::string_view key) {
  const std::optional<std::size_t> place = placeOfKey(text, key);
  if (!place) return std::nullopt;
  const std::size_t colon = text.find(':', *place + key.size() + 2);
  const std::size_t start = text.find_first_not_of(kWhiteSpace, colon + 1);
  const std::size_t end = text[start] == '"' ? stringEnd(text, start) : text.find_first_of(" \t\r\n,}", start);
  return ScalarPlace{start, end - start};
}

}  // namespace glossmill
