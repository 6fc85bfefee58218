#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// Whether the whole text is what a pattern describes, in which `*` stands for any number of characters and `?` for
/// one.
bool fitsWildcards(std::string_view pattern, std::string_view text);

/// Patterns of paths that are left out. In a pattern `*` stands for anything but a slash, `?` for one character that is
/// no slash, and `**` as a whole part for any number of parts. One that takes a directory takes all that is inside.
class PathGlobs {
 public:
  PathGlobs() = default;
  explicit PathGlobs(const std::vector<std::string>& patterns);

  /// `path` is normalised and begins where the patterns begin.
  bool take(std::string_view path) const;

 private:
  using Parts = std::vector<std::string>;

  std::vector<Parts> m_patterns;
};

}  // namespace glossmill
