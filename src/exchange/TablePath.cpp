#include "exchange/TablePath.h"

#include "text/Split.h"

namespace glossmill {

namespace {

std::string_view withoutExtension(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  return dot == std::string_view::npos || dot == 0 ? name : name.substr(0, dot);
}

}  // namespace

std::string tableOfPath(std::string_view path) {
  std::string id;
  const auto parts = split(path, '/');
  for (std::size_t at = 0; at + 1 < parts.size(); ++at) {
    const std::string_view part = parts[at];
    if (part.empty() || part == "." || part.ends_with(".lproj")) continue;
    id.append(part).append("/");
  }
  return id.append(withoutExtension(parts.back()));
}

}  // namespace glossmill
