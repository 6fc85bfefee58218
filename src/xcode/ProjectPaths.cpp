#include "xcode/ProjectPaths.h"

namespace glossmill {

namespace {

constexpr std::size_t kLongestPath = 1023;

/// Takes the last part away, or adds ".." where there is none.
void goUp(std::string& path) {
  const std::size_t slash = path.rfind('/');
  const std::size_t last = slash == std::string::npos ? 0 : slash + 1;
  if (path == "/") return;
  if (path.empty() || std::string_view(path).substr(last) == "..") {
    path += path.empty() ? ".." : "/..";
  } else {
    path.resize(slash == std::string::npos ? 0 : slash == 0 ? 1 : slash);
  }
}

void goInto(std::string& path, std::string_view part) {
  if (!path.empty() && !path.ends_with('/')) path += '/';
  path += part;
}

}  // namespace

std::optional<std::string> joinedPath(std::string_view base, std::string_view path) {
  std::string joined(path.starts_with('/') ? "/" : base);
  if (path.size() > kLongestPath) return std::nullopt;
  while (!path.empty()) {
    const std::string_view part = path.substr(0, path.find('/'));
    path.remove_prefix(part.size() == path.size() ? part.size() : part.size() + 1);
    if (part == "..") {
      goUp(joined);
    } else if (!part.empty() && part != ".") {
      goInto(joined, part);
    }
  }
  return joined.size() > kLongestPath ? std::nullopt : std::optional(std::move(joined));
}

}  // namespace glossmill
