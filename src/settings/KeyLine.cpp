#include "settings/KeyLine.h"

namespace glossmill {

namespace {

/// Behind the string whose first quote is at `at`.
std::size_t stringEnd(std::string_view text, std::size_t at) {
  for (++at; at < text.size() && text[at] != '"'; ++at) {
    if (text[at] == '\\') ++at;
  }
  return at + 1;
}

bool isFollowedByColon(std::string_view text, std::size_t at) {
  const std::size_t next = text.find_first_not_of(" \t\r\n", at);
  return next != std::string_view::npos && text[next] == ':';
}

}  // namespace

std::size_t lineOfKey(std::string_view text, std::string_view key) {
  std::size_t found = 1;
  std::size_t line = 1;
  std::size_t depth = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\n') ++line;
    if (text[at] == '{' || text[at] == '[') ++depth;
    if (text[at] == '}' || text[at] == ']') --depth;
    if (text[at] != '"') continue;
    const std::size_t end = stringEnd(text, at);
    const bool isKey = depth == 1 && isFollowedByColon(text, end);
    if (isKey && text.substr(at + 1, end - at - 2) == key) found = line;
    at = end - 1;
  }
  return found;
}

}  // namespace glossmill
