#include "scan/ProjectFileNames.h"

#include <algorithm>

namespace glossmill {

namespace {

constexpr std::string_view kEnding = ".m";
constexpr std::size_t kLongestName = 255;  // of a file name in bytes, on every file system that matters
constexpr std::size_t kNear = sizeof(std::uint64_t);

unsigned byteBefore(std::string_view text, std::size_t end, std::size_t back) {
  return static_cast<unsigned char>(text[end - back]);
}

std::uint64_t nearestBytes(std::string_view text, std::size_t dot) {
  std::uint64_t bytes = 0;
  for (std::size_t back = 1; back <= kNear; ++back) {
    bytes = (bytes << 8) | (back <= dot ? byteBefore(text, dot, back) : 0);
  }
  return bytes;
}

}  // namespace

ProjectFileNames::ProjectFileNames(std::string_view text) : m_text(text) {
  for (std::size_t dot = text.find(kEnding); dot != std::string_view::npos; dot = text.find(kEnding, dot + 1)) {
    m_endings.push_back({nearestBytes(text, dot), static_cast<std::uint32_t>(dot)});
  }
  std::sort(m_endings.begin(), m_endings.end(), [this](const Ending& a, const Ending& b) { return comesBefore(a, b); });
}

bool ProjectFileNames::comesBefore(const Ending& a, const Ending& b) const {
  if (a.nearest != b.nearest) return a.nearest < b.nearest;
  const std::size_t reach = std::min({std::size_t{a.dot}, std::size_t{b.dot}, kLongestName});
  for (std::size_t back = kNear + 1; back <= reach; ++back) {
    const unsigned ofA = byteBefore(m_text, a.dot, back);
    const unsigned ofB = byteBefore(m_text, b.dot, back);
    if (ofA != ofB) return ofA < ofB;
  }
  return reach < kLongestName && a.dot < b.dot;
}

int ProjectFileNames::compareWithStem(const Ending& ending, std::string_view stem) const {
  for (std::size_t back = 1; back <= stem.size(); ++back) {
    if (back > ending.dot) return -1;
    const unsigned ofText = byteBefore(m_text, ending.dot, back);
    const unsigned ofStem = byteBefore(stem, stem.size(), back);
    if (ofText != ofStem) return ofText < ofStem ? -1 : 1;
  }
  return 0;
}

bool ProjectFileNames::mentions(std::string_view name) const {
  const std::string_view stem = name.substr(0, name.size() - kEnding.size());
  const auto found = std::lower_bound(
      m_endings.begin(), m_endings.end(), stem,
      [this](const Ending& ending, std::string_view wanted) { return compareWithStem(ending, wanted) < 0; });
  return found != m_endings.end() && compareWithStem(*found, stem) == 0;
}

}  // namespace glossmill
