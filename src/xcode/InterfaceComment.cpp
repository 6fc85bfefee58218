#include "xcode/InterfaceComment.h"

#include "xcode/PlistEscapes.h"

namespace glossmill {

namespace {

/// What stands between the quotes behind `name = `, where a word begins.
std::optional<std::string_view> quotedAfter(std::string_view comment, std::string_view name) {
  const std::string wanted = std::string(name) + " = \"";
  std::size_t at = comment.find(wanted);
  while (at != std::string_view::npos && at > 0 && comment[at - 1] != ' ') at = comment.find(wanted, at + 1);
  if (at == std::string_view::npos) return std::nullopt;
  const std::size_t begin = at + wanted.size();
  std::size_t end = comment.find_first_of("\"\\", begin);
  while (end != std::string_view::npos && comment[end] == '\\') end = comment.find_first_of("\"\\", end + 2);
  if (end == std::string_view::npos) return std::nullopt;
  return comment.substr(begin, end - begin);
}

}  // namespace

std::optional<std::string> interfaceText(std::string_view key, std::string_view comment) {
  const std::size_t dot = key.find('.');
  if (dot == std::string_view::npos || quotedAfter(comment, "ObjectID") != key.substr(0, dot)) return std::nullopt;
  const std::optional<std::string_view> text = quotedAfter(comment, key.substr(dot + 1));
  return text ? std::optional(unescapePlist(*text)) : std::nullopt;
}

}  // namespace glossmill
