#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "tests/MadeTree.h"
#include "tree/ProjectTree.h"
#include "tree/StringsText.h"
#include "tree/TreeWriter.h"
#include "tree/Vocabulary.h"

namespace glossmill::bench {

namespace {

namespace fs = std::filesystem;

// Of text in the basic plane, which is all that the languages of a tree use.
std::string decoded(const std::string& bytes) {
  if (!bytes.starts_with("\xFF\xFE")) return bytes;
  std::string text;
  for (std::size_t at = 2; at + 1 < bytes.size(); at += 2) {
    const unsigned unit = static_cast<unsigned char>(bytes[at]) + 256U * static_cast<unsigned char>(bytes[at + 1]);
    if (unit < 0x80) {
      text += static_cast<char>(unit);
      continue;
    }
    text += static_cast<char>(unit < 0x800 ? 0xC0U | unit >> 6U : 0xE0U | unit >> 12U);
    if (unit >= 0x800) text += static_cast<char>(0x80U | (unit >> 6U & 0x3FU));
    text += static_cast<char>(0x80U | (unit & 0x3FU));
  }
  return text;
}

}  // namespace

TEST(ProjectTree, MakesTheSameBytesTwice) {
  EXPECT_EQ(textsOf(writeProject, tinyShape()), textsOf(writeProject, tinyShape()));
}

TEST(ProjectTree, MakesAsManyCallsAndKeysAsItsShapeSays) {
  const FileTexts sources = filesEndingIn(textsOf(writeProject, tinyShape()), ".m");
  const std::string text = joined(sources);
  const std::vector<std::string> keys = wellFormedKeys(text);
  EXPECT_EQ(sources.size(), 8U);
  EXPECT_EQ(keys.size(), 40U);
  EXPECT_EQ(occurrences(text, "NSLocalizedString"), 40U);
  EXPECT_EQ(std::set<std::string>(keys.begin(), keys.end()).size(), 20U);
}

TEST(ProjectTree, TranslatesEveryKeyOnceInEveryLanguage) {
  const FileTexts files = textsOf(writeProject, tinyShape());
  const std::vector<std::string> called = wellFormedKeys(joined(filesEndingIn(files, ".m")));
  const FileTexts languages = filesEndingIn(files, ".lproj/Localizable.strings");
  EXPECT_EQ(languages.size(), 4U);
  for (const auto& [path, bytes] : languages) {
    const std::vector<std::string> keys = matches(decoded(bytes), R"re(\*/\n"([^"\n]*)" = "[^"\n]+";\n\n)re");
    EXPECT_EQ(keys.size(), 20U) << path;
    EXPECT_EQ(std::set<std::string>(keys.begin(), keys.end()), std::set<std::string>(called.begin(), called.end()))
        << path;
  }
}

TEST(ProjectTree, OneOfTenEntriesMayHaveAKeyThatNoSourceCalls) {
  const FileTexts files = textsOf(writeProject, withStrays(tinyShape()));
  const std::vector<std::string> called = wellFormedKeys(joined(filesEndingIn(files, ".m")));
  const std::set<std::string> known(called.begin(), called.end());
  for (const auto& [path, bytes] : filesEndingIn(files, ".lproj/Localizable.strings")) {
    const std::vector<std::string> keys = matches(decoded(bytes), R"re(\*/\n"([^"\n]*)" = "[^"\n]+";\n\n)re");
    const auto strays = [&known](const std::string& key) { return !known.contains(key); };
    EXPECT_EQ(keys.size(), 20U) << path;
    EXPECT_EQ(std::count_if(keys.begin(), keys.end(), strays), 2) << path;
  }
}

TEST(ProjectTree, WritesEveryFourthLanguageInUtf16) {
  const FileTexts languages = filesEndingIn(textsOf(writeProject, tinyShape()), ".strings");
  const auto isUtf16 = [](const auto& file) { return file.second.starts_with("\xFF\xFE"); };
  EXPECT_EQ(std::count_if(languages.begin(), languages.end(), isUtf16), 1);
}

TEST(ProjectTree, ComesNearTheSizesOfItsShape) {
  const FileTexts files = textsOf(writeProject, tinyShape());
  expectNear(joined(filesEndingIn(files, ".m")).size(), tinyShape().sourceBytes);
  expectNear(joined(filesEndingIn(files, ".strings")).size(), tinyShape().stringsBytes);
  expectNear(joined(filesEndingIn(files, ".pbxproj")).size(), tinyShape().projectFileBytes);
}

TEST(ProjectTree, MakesExactlyTheEntriesOfItsShape) {
  const TemporaryDirectory directory;
  TreeWriter tree(directory.path());
  writeProject(tree, tinyShape());
  const auto entries =
      std::distance(fs::recursive_directory_iterator(directory.path()), fs::recursive_directory_iterator());
  EXPECT_EQ(entries, 60);
  EXPECT_EQ(tree.entries(), 60U);
}

TEST(ProjectTree, NamesEverySourceInTheProjectFile) {
  const FileTexts files = textsOf(writeProject, tinyShape());
  const std::string project = files.at("App.xcodeproj/project.pbxproj");
  for (const auto& [path, text] : filesEndingIn(files, ".m")) {
    EXPECT_NE(project.find("path = " + fs::path(path).filename().string() + ";"), std::string::npos) << path;
  }
}

TEST(ProjectTree, NeverRepeatsAKeyOrAClassName) {
  std::set<std::string> keys;
  for (std::size_t index = 0; index < 100'000; ++index) keys.insert(keyText(index));
  std::set<std::string> names;
  for (std::size_t index = 0; index < kMaximalClasses; ++index) names.insert(className(index));
  EXPECT_EQ(keys.size(), 100'000U);
  EXPECT_EQ(names.size(), kMaximalClasses);
}

TEST(ProjectTree, WritesUtf16WithItsMarkAndSurrogatePairs) {
  using std::string_literals::operator""s;
  EXPECT_EQ(utf16WithMark("a\u00D6\u958B\U0001F600"),
            "\xFF\xFE"
            "a\0\xD6\0\x8B\x95\x3D\xD8\x00\xDE"s);
}

TEST(ProjectTree, RefusesADirectoryThatHoldsSomething) {
  const TemporaryDirectory directory;
  TreeWriter first(directory.path());
  first.write("a.txt", "a");
  TreeWriter second(directory.path());
  second.write("b.txt", "b");
  EXPECT_NE(second.error(), "");
  EXPECT_FALSE(fs::exists(directory.path() / "b.txt"));
}

}  // namespace glossmill::bench
