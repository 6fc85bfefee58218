#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "tests/MadeTree.h"
#include "tree/HostileTrees.h"

namespace glossmill::bench {

TEST(HostileTrees, MakeTheSameBytesTwice) {
  EXPECT_EQ(textsOf(writeBadProject, 20'000U), textsOf(writeBadProject, 20'000U));
  EXPECT_EQ(textsOf(writeLongLine, 20'000U), textsOf(writeLongLine, 20'000U));
}

TEST(HostileTrees, HoldTheCallsTheyAreAskedFor) {
  const std::string unbalanced = textsOf(writeUnbalanced, 50U).at("Main.m");
  EXPECT_EQ(unbalanced.size(), 50U * 40U);
  EXPECT_EQ(occurrences(unbalanced, "NSLocalizedString("), 50U);
  EXPECT_EQ(occurrences(unbalanced, ")"), 0U);
  const std::string bare = textsOf(writeBare, 50U).at("Main.m");
  EXPECT_EQ(occurrences(bare, "NSLocalizedString"), 50U);
  EXPECT_EQ(occurrences(bare, "("), 0U);
  const std::string nested = textsOf(writeNested, 50U).at("Main.m");
  EXPECT_EQ(occurrences(nested, "NSLocalizedString("), 50U);
  EXPECT_EQ(occurrences(nested, ")"), 50U);
  EXPECT_EQ(occurrences(textsOf(writeDangling, 50U).at("Main.m"), ","), 0U);
  EXPECT_EQ(wellFormedKeys(textsOf(writeComments, 50U).at("Main.m")), std::vector<std::string>(50, "Open"));
}

TEST(HostileTrees, MakeOneLongLineOfTheSizeAskedFor) {
  const std::string line = textsOf(writeLongLine, 50'000U).at("Main.m");
  const std::vector<std::string> keys = wellFormedKeys(line);
  expectNear(line.size(), 50'000);
  EXPECT_EQ(occurrences(line, "\n"), 0U);
  EXPECT_EQ(std::set<std::string>(keys.begin(), keys.end()).size(), 100U);
}

TEST(HostileTrees, MakeAsManyDistinctKeysAsAskedFor) {
  const FileTexts files = textsOf(writeManyKeys, 500U);
  const std::vector<std::string> keys = wellFormedKeys(joined(filesEndingIn(files, ".m")));
  EXPECT_EQ(keys.size(), 500U);
  EXPECT_EQ(std::set<std::string>(keys.begin(), keys.end()).size(), 500U);
  EXPECT_EQ(occurrences(files.at("en.lproj/Localizable.strings"), "\" = \""), 500U);
}

TEST(HostileTrees, NameEverySecondSourceInABadProjectFile) {
  const FileTexts files = textsOf(writeBadProject, 170'000U);
  const std::string project = files.at("App.xcodeproj/project.pbxproj");
  const FileTexts sources = filesEndingIn(files, ".m");
  const auto isNamed = [&](const auto& file) {
    return project.find(std::filesystem::path(file.first).filename().string()) != std::string::npos;
  };
  EXPECT_EQ(sources.size(), 100U);
  EXPECT_EQ(std::count_if(sources.begin(), sources.end(), isNamed), 50);
  expectNear(project.size(), 170'000);
}

TEST(HostileTrees, HoldTheEntriesTheyAreAskedFor) {
  const std::string path = "en.lproj/Localizable.strings";
  EXPECT_EQ(occurrences(textsOf(writeBadComments, 30U).at(path), "\"Open\" = \"Open\";"), 30U);
  EXPECT_EQ(occurrences(textsOf(writeStars, 30U).at(path), "/*"), 30U);
  EXPECT_EQ(occurrences(textsOf(writeQuotes, 30U).at(path), "\n"), 30U);
}

}  // namespace glossmill::bench
