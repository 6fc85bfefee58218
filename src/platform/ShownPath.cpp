#include "platform/ShownPath.h"

namespace glossmill {

std::string_view pathBelow(const FileUrl& directory, const FileUrl& url) {
  std::string_view path = url.path();
  const std::string_view above = directory.path();
  if (above.empty() || !path.starts_with(above)) return {};
  path.remove_prefix(above.size());
  if (above == "/") return path;
  return path.starts_with('/') ? path.substr(1) : std::string_view();
}

std::string_view shownPath(const FileUrl& directory, const FileUrl& url) {
  const std::string_view below = pathBelow(directory, url);
  return below.empty() ? std::string_view(url.path()) : below;
}

}  // namespace glossmill
