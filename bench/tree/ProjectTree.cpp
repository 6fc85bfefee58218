#include "tree/ProjectTree.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "tree/LanguageWords.h"
#include "tree/ProjectFileText.h"
#include "tree/Random.h"
#include "tree/SourceText.h"
#include "tree/StringsText.h"
#include "tree/Vocabulary.h"

namespace glossmill::bench {

namespace {

constexpr std::size_t kSourcesPerDirectory = 25;

std::string sourceDirectory(std::size_t source) {
  const std::size_t group = source / kSourcesPerDirectory;
  return "Sources/" + capitalized(nouns()[group % 64]) + "/" + std::to_string(group / 64) + "/";
}

// The first call of every key introduces it; the calls between repeat a key seen before, now and then with another
// comment.
SourceCall callAt(const ProjectShape& shape, std::size_t call, Random& random) {
  const std::size_t seen = call * shape.keys / shape.calls;
  const bool introduces = (call + 1) * shape.keys / shape.calls > seen || seen == 0;
  const std::size_t key = introduces ? seen : random.below(seen);
  const bool otherComment = !introduces && random.oneIn(8);
  return {keyText(key), commentText(otherComment ? key + 1 : key)};
}

std::string sourceOf(const ProjectShape& shape, std::size_t source) {
  Random random(source + 1);
  std::vector<SourceCall> calls;
  const std::size_t end = shape.calls * (source + 1) / shape.sources;
  for (std::size_t call = shape.calls * source / shape.sources; call < end; ++call) {
    calls.push_back(callAt(shape, call, random));
  }
  return sourceText(className(source), calls, shape.sourceBytes / shape.sources, random);
}

void writeSources(TreeWriter& tree, const ProjectShape& shape) {
  std::vector<std::string> names;
  for (std::size_t source = 0; source < shape.sources; ++source) {
    names.push_back(className(source));
    const std::string path = sourceDirectory(source) + names.back();
    tree.write(path + ".m", sourceOf(shape, source));
    tree.write(path + ".h", "#import <Foundation/Foundation.h>\n\n@interface " + names.back() + " : NSObject\n@end\n");
  }
  tree.write("App.xcodeproj/project.pbxproj", projectFileText(names, shape.projectFileBytes));
}

// Strings files are usually kept sorted by key, the same way in every language.
std::vector<std::size_t> sortedKeyIndexes(const ProjectShape& shape) {
  std::vector<std::pair<std::string, std::size_t>> keys;
  for (std::size_t entry = 0; entry < shape.keys; ++entry) {
    const bool strays = shape.strayEvery != 0 && entry % shape.strayEvery == shape.strayEvery - 1;
    const std::size_t key = strays ? entry + shape.keys : entry;
    keys.emplace_back(keyText(key), key);
  }
  std::sort(keys.begin(), keys.end());
  std::vector<std::size_t> indexes;
  for (const auto& [text, key] : keys) indexes.push_back(key);
  return indexes;
}

// Every eighth language keeps its sections in an order of its own.
std::vector<std::size_t> keyIndexesOf(std::size_t language, const std::vector<std::size_t>& sorted) {
  constexpr std::size_t kSectionKeys = 50;
  if (language % 8 != 5) return sorted;
  Random random(language);
  std::vector<std::size_t> starts;
  for (std::size_t start = 0; start < sorted.size(); start += kSectionKeys) starts.push_back(start);
  for (std::size_t last = starts.size() - 1; last > 0; --last) std::swap(starts[last], starts[random.below(last + 1)]);
  std::vector<std::size_t> indexes;
  for (const std::size_t start : starts) {
    const std::size_t end = std::min(start + kSectionKeys, sorted.size());
    for (std::size_t at = start; at < end; ++at) indexes.push_back(sorted[at]);
  }
  return indexes;
}

bool isUtf16(std::size_t language) {
  return language % 4 == 1;
}

// A file in UTF-16 gets twice the share of one in UTF-8; what one language took too much is taken from those after it.
void writeLanguages(TreeWriter& tree, const ProjectShape& shape) {
  const std::vector<std::size_t> sorted = sortedKeyIndexes(shape);
  std::size_t shares = 0;
  for (std::size_t language = 0; language < shape.languages; ++language) shares += isUtf16(language) ? 2 : 1;
  std::size_t bytesLeft = shape.stringsBytes;
  for (std::size_t language = 0; language < shape.languages; ++language) {
    const LanguageWords& words = languageWords()[language];
    const std::size_t share = isUtf16(language) ? 2 : 1;
    const StringsShape file{isUtf16(language) ? StringsEncoding::utf16LittleEndianWithMark : StringsEncoding::utf8,
                            bytesLeft * share / shares};
    Random random(1000 + language);
    const std::string bytes = stringsText(words, keyIndexesOf(language, sorted), file, random);
    tree.write(std::string(words.code) + ".lproj/Localizable.strings", bytes);
    shares -= share;
    bytesLeft -= std::min(bytesLeft, bytes.size());
  }
}

void writePictures(TreeWriter& tree, std::size_t entries) {
  for (std::size_t picture = 0; tree.error().empty() && tree.entries() < entries; ++picture) {
    const std::string number = std::to_string(picture);
    tree.write("Pictures/picture" + number + ".png", "\x89PNG\r\n" + number);
  }
}

}  // namespace

ProjectShape largeShape() {
  return {10'000, 134'000'000, 200'000, 100'000, kLanguageCount, 612'000'000, 5'000'000, 25'000};
}

ProjectShape mediumShape() {
  return {1'000, 13'500'000, 20'000, 10'000, 20, 30'000'000, 500'000, 2'500};
}

ProjectShape tinyShape() {
  return {8, 40'000, 40, 20, 4, 12'000, 5'000, 60};
}

ProjectShape withStrays(ProjectShape shape) {
  shape.strayEvery = 10;
  return shape;
}

ProjectShape manyKeysShape(std::size_t keys) {
  const std::size_t sources = std::max<std::size_t>(1, keys / 100);
  return {sources, keys * 170, keys, keys, 1, keys * 120, sources * 450, 0};
}

void writeProject(TreeWriter& tree, const ProjectShape& shape) {
  writeSources(tree, shape);
  writeLanguages(tree, shape);
  writePictures(tree, shape.entries);
}

}  // namespace glossmill::bench
