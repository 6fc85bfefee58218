#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// Tells which source files a project file mentions. The test is deliberately loose (rule 4): a name counts wherever
/// its letters stand, also inside a longer name. Any number of questions costs one sort of the places where a name can
/// end.
class ProjectFileNames {
 public:
  /// `text` outlives this. An empty text mentions nothing.
  explicit ProjectFileNames(std::string_view text);

  /// `name` is a file name that ends in ".m".
  bool mentions(std::string_view name) const;

 private:
  /// A ".m" in the text, with the eight bytes before it, the nearest first, for quick comparisons.
  struct Ending {
    std::uint64_t nearest;
    std::uint32_t dot;
  };

  void dropRepeated();
  bool comesBefore(const Ending& a, const Ending& b) const;
  /// How the text before the ending compares with the stem, both read backwards: negative, 0 when it ends in the stem,
  /// positive.
  int compareWithStem(const Ending& ending, std::string_view stem) const;

  std::string_view m_text;
  std::vector<Ending> m_endings;
};

}  // namespace glossmill
