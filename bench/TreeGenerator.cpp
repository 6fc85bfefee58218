// glossmill-bench-tree KIND DIR [SIZE]: makes the project tree of a kind in DIR, the same bytes every time.

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <system_error>

#include "tree/HostileTrees.h"
#include "tree/ProjectTree.h"
#include "tree/TreeWriter.h"
#include "tree/Vocabulary.h"
#include "tree/XcodeHostileTrees.h"

namespace glossmill::bench {

namespace {

enum ExitCode : int { kMade = 0, kWrongUsage = 2, kCannotWrite = 3 };

struct Kind {
  std::string_view name;
  std::size_t defaultSize;  // 0: the kind has no size
  std::size_t maximalSize;
  void (*write)(TreeWriter& tree, std::size_t size);
};

void writeLarge(TreeWriter& tree, std::size_t /*size*/) {
  writeProject(tree, largeShape());
}

void writeMedium(TreeWriter& tree, std::size_t /*size*/) {
  writeProject(tree, mediumShape());
}

void writeLargeWithStrays(TreeWriter& tree, std::size_t /*size*/) {
  writeProject(tree, withStrays(largeShape()));
}

void writeMediumWithStrays(TreeWriter& tree, std::size_t /*size*/) {
  writeProject(tree, withStrays(mediumShape()));
}

void writeTiny(TreeWriter& tree, std::size_t /*size*/) {
  writeProject(tree, tinyShape());
}

constexpr std::size_t kCalls = 100'000;
constexpr std::size_t kMaximalCalls = 10'000'000;
constexpr std::size_t kMaximalBytes = 1'000'000'000;
// Beyond it the class names of the sources would repeat.
constexpr std::size_t kMaximalManyKeys = 100 * kMaximalClasses;

constexpr std::array<Kind, 22> kKinds = {{
    {"large", 0, 0, writeLarge},
    {"medium", 0, 0, writeMedium},
    {"large-strays", 0, 0, writeLargeWithStrays},
    {"medium-strays", 0, 0, writeMediumWithStrays},
    {"tiny", 0, 0, writeTiny},
    {"unbalanced", kCalls, kMaximalCalls, writeUnbalanced},
    {"bare", kCalls, kMaximalCalls, writeBare},
    {"nested", kCalls, kMaximalCalls, writeNested},
    {"dangling", kCalls, kMaximalCalls, writeDangling},
    {"comments", kCalls, kMaximalCalls, writeComments},
    {"longline", 50'000'000, kMaximalBytes, writeLongLine},
    {"keys", 1'000'000, kMaximalManyKeys, writeManyKeys},
    {"badproject", 5'000'000, kMaximalBytes, writeBadProject},
    {"badcomments", kCalls, kMaximalCalls, writeBadComments},
    {"stars", kCalls, kMaximalCalls, writeStars},
    {"quotes", kCalls, kMaximalCalls, writeQuotes},
    {"literals", kCalls, kMaximalCalls, writeLiterals},
    {"groups", kCalls, kMaximalCalls, writeGroups},
    {"macros", kCalls, kMaximalCalls, writeMacros},
    {"tables", 2'000, 100'000, writeTables},
    {"callline", 50'000'000, kMaximalBytes, writeCallLine},
    {"repeated", 1'000'000, kMaximalCalls, writeRepeatedKeys},
}};

int explainUsage() {
  std::fputs("usage: glossmill-bench-tree KIND DIR [SIZE]\nkinds:", stderr);
  for (const Kind& kind : kKinds) std::fprintf(stderr, " %.*s", static_cast<int>(kind.name.size()), kind.name.data());
  std::fputs("\n", stderr);
  return kWrongUsage;
}

const Kind* kindNamed(std::string_view name) {
  for (const Kind& kind : kKinds) {
    if (kind.name == name) return &kind;
  }
  return nullptr;
}

bool readSize(const Kind& kind, std::string_view text, std::size_t& size) {
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, size);
  return error == std::errc() && stop == end && size >= 1 && size <= kind.maximalSize;
}

int makeTree(const Kind& kind, const char* directory, std::size_t size) {
  TreeWriter tree(directory);
  kind.write(tree, size);
  if (!tree.error().empty()) {
    std::fprintf(stderr, "glossmill-bench-tree: %s\n", tree.error().c_str());
    return kCannotWrite;
  }
  std::printf("%zu entries\n", tree.entries());
  return kMade;
}

}  // namespace

int run(int count, char** arguments) {
  if (count < 3 || count > 4) return explainUsage();
  const Kind* const kind = kindNamed(arguments[1]);
  if (kind == nullptr) return explainUsage();
  std::size_t size = kind->defaultSize;
  if (count == 4 && !readSize(*kind, arguments[3], size)) return explainUsage();
  return makeTree(*kind, arguments[2], size);
}

}  // namespace glossmill::bench

int main(int count, char** arguments) {
  return glossmill::bench::run(count, arguments);
}
