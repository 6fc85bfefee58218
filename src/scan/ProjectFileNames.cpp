#include "scan/ProjectFileNames.h"

#include <algorithm>
#include <unordered_set>

namespace glossmill {

namespace {

constexpr std::string_view kEnding = ".m";
constexpr std::size_t kLongestName = 255;  // of a file name in bytes, on every file system that matters
constexpr std::size_t kNear = sizeof(std::uint64_t);

/// One name among so many bytes is more than any real project file has: then places with the same text before them are
/// dropped.
constexpr std::size_t kBytesPerName = 32;

unsigned byteBefore(std::string_view text, std::size_t end, std::size_t back) {
  return static_cast<unsigned char>(text[end - back]);
}

/// The eight bytes before `end` as a number, the nearest byte first; `end` is at least eight.
std::uint64_t wordBefore(std::string_view text, std::size_t end) {
  std::uint64_t word = 0;
  for (std::size_t i = 0; i < kNear; ++i) {
    word |= static_cast<std::uint64_t>(static_cast<unsigned char>(text[end - kNear + i])) << (8 * i);
  }
  return word;
}

std::uint64_t nearestBytes(std::string_view text, std::size_t dot) {
  if (dot >= kNear) return wordBefore(text, dot);
  std::uint64_t bytes = 0;
  for (std::size_t back = 1; back <= kNear; ++back) {
    bytes = (bytes << 8) | (back <= dot ? byteBefore(text, dot, back) : 0);
  }
  return bytes;
}

/// Compares what stands before two places, `length` bytes read backwards.
int compareBackwards(std::string_view a, std::size_t endOfA, std::string_view b, std::size_t endOfB,
                     std::size_t length) {
  for (; length >= kNear; length -= kNear, endOfA -= kNear, endOfB -= kNear) {
    const std::uint64_t ofA = wordBefore(a, endOfA);
    const std::uint64_t ofB = wordBefore(b, endOfB);
    if (ofA != ofB) return ofA < ofB ? -1 : 1;
  }
  for (std::size_t back = 1; back <= length; ++back) {
    const unsigned ofA = byteBefore(a, endOfA, back);
    const unsigned ofB = byteBefore(b, endOfB, back);
    if (ofA != ofB) return ofA < ofB ? -1 : 1;
  }
  return 0;
}

}  // namespace

ProjectFileNames::ProjectFileNames(std::string_view text) : m_text(text) {
  for (std::size_t dot = text.find(kEnding); dot != std::string_view::npos; dot = text.find(kEnding, dot + 1)) {
    m_endings.push_back({nearestBytes(text, dot), static_cast<std::uint32_t>(dot)});
  }
  if (m_endings.size() > text.size() / kBytesPerName) dropRepeated();
  std::sort(m_endings.begin(), m_endings.end(), [this](const Ending& a, const Ending& b) { return comesBefore(a, b); });
}

/// Keeps the first of the endings that no name can tell from each other.
void ProjectFileNames::dropRepeated() {
  std::unordered_set<std::string_view> known;
  std::erase_if(m_endings, [&](const Ending& ending) {
    const std::size_t reach = std::min(std::size_t{ending.dot}, kLongestName);
    return !known.insert(m_text.substr(ending.dot - reach, reach)).second;
  });
}

bool ProjectFileNames::comesBefore(const Ending& a, const Ending& b) const {
  if (a.nearest != b.nearest) return a.nearest < b.nearest;
  const std::size_t reach = std::min({std::size_t{a.dot}, std::size_t{b.dot}, kLongestName});
  const int compared = compareBackwards(m_text, a.dot, m_text, b.dot, reach);
  if (compared != 0) return compared < 0;
  return reach < kLongestName && a.dot < b.dot;
}

int ProjectFileNames::compareWithStem(const Ending& ending, std::string_view stem) const {
  const std::size_t reach = std::min(std::size_t{ending.dot}, stem.size());
  const int compared = compareBackwards(m_text, ending.dot, stem, stem.size(), reach);
  return compared == 0 && reach < stem.size() ? -1 : compared;
}

bool ProjectFileNames::mentions(std::string_view name) const {
  const std::string_view stem = name.substr(0, name.size() - kEnding.size());
  const auto found = std::lower_bound(
      m_endings.begin(), m_endings.end(), stem,
      [this](const Ending& ending, std::string_view wanted) { return compareWithStem(ending, wanted) < 0; });
  return found != m_endings.end() && compareWithStem(*found, stem) == 0;
}

}  // namespace glossmill
