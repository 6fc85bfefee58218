#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "scan/WalkedTree.h"

namespace glossmill {
namespace {

using Lines = std::vector<std::string>;

TEST(TreeWalkCounter, CountsTheDirectoriesThatWereEntered) {
  WalkedTree tree;
  tree.addDirectory("a/b");
  tree.addDirectory("c/d");
  tree.walk();
  EXPECT_EQ(tree.state.actualDirectoryDepth, 5);
}

TEST(TreeWalkCounter, CountsAnEmptyDirectory) {
  WalkedTree tree;
  tree.addDirectory("");
  tree.walk();
  EXPECT_EQ(tree.state.actualDirectoryDepth, 1);
}

TEST(TreeWalkCounter, CountsADirectoryThatCannotBeListed) {
  WalkedTree tree;
  tree.add("a/x.m");
  tree.add("b.m");
  tree.addDirectory("c.lproj");
  tree.files.failListing("/P/a", "Permission denied.");
  tree.walk();
  EXPECT_EQ(tree.state.actualDirectoryDepth, 3);
  EXPECT_EQ(tree.sources, Lines{"/P/b.m"});
  EXPECT_EQ(tree.languageLines(), Lines{"c 2 /P/c.lproj"});
}

TEST(TreeWalkCounter, CountsAChosenDirectoryThatCannotBeListed) {
  WalkedTree tree;
  tree.walk();
  EXPECT_EQ(tree.state.actualDirectoryDepth, 1);
  EXPECT_EQ(tree.sources, Lines());
}

TEST(TreeWalkCounter, RisesFromWhereItStood) {
  WalkedTree tree;
  tree.state.actualDirectoryDepth = 40;
  tree.addDirectory("de.lproj");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines{"de 41 /P/de.lproj"});
  EXPECT_EQ(tree.state.actualDirectoryDepth, 42);
}

TEST(TreeWalkCancel, LeavesEachDirectoryAtItsNextEntry) {
  WalkedTree tree;
  for (const auto* path : {"a.m", "b/c.m", "b/d/e.m", "z.m"}) tree.add(path);
  tree.files.onList = [&tree](const std::string& path) {
    if (path == "/P/b") tree.canceled.set(true);
  };
  tree.walk();
  EXPECT_EQ(tree.sources, Lines{"/P/a.m"});
  EXPECT_EQ(tree.files.listed(), (Lines{"/P", "/P/b"}));
  EXPECT_EQ(tree.state.actualDirectoryDepth, 2);
}

TEST(TreeWalkCancel, KeepsTheLanguagesMadeSoFar) {
  WalkedTree tree;
  tree.add("de.lproj/Localizable.strings");
  tree.addDirectory("en.lproj");
  tree.files.onList = [&tree](const std::string& path) {
    if (path == "/P/de.lproj") tree.canceled.set(true);
  };
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines{"de 1 /P/de.lproj"});
}

}  // namespace
}  // namespace glossmill
