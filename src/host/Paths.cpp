#include "host/Paths.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace glossmill {

namespace {

using Path = std::filesystem::path;

/// Asks the disk where the part up to the last ".." leads: it may lead out of a link.
Path withoutStepsUp(const Path& path) {
  const auto rest = std::find(std::make_reverse_iterator(path.end()), std::make_reverse_iterator(path.begin()), "..");
  Path resolved;
  for (auto part = path.begin(); part != rest.base(); ++part) resolved /= *part;
  std::error_code problem;
  const Path canonical = std::filesystem::weakly_canonical(resolved, problem);
  if (!problem) resolved = canonical;
  for (auto part = rest.base(); part != path.end(); ++part) resolved /= *part;
  return resolved;
}

}  // namespace

FileUrl absoluteUrl(std::string_view typed) {
  if (typed.empty()) return {};
  std::error_code problem;
  const Path absolute = std::filesystem::absolute(Path(typed), problem);
  if (problem) return {};
  const bool stepsUp = std::find(absolute.begin(), absolute.end(), "..") != absolute.end();
  // What is left to tidy are double slashes and single dots.
  return FileUrl((stepsUp ? withoutStepsUp(absolute) : absolute).lexically_normal().string());
}

}  // namespace glossmill
