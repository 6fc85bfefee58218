#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "scan/WalkedTree.h"

namespace glossmill {
namespace {

using Lines = std::vector<std::string>;

TEST(TreeWalkLinks, AreFollowedToFilesAndDirectories) {
  WalkedTree tree;
  tree.files.addFile("/elsewhere/deep/x.m", "");
  tree.files.addFile("/elsewhere/y.m", "");
  tree.addLink("one.m", "/elsewhere/y.m");
  tree.addLink("there", "/elsewhere");
  tree.walk();
  EXPECT_EQ(tree.sources, (Lines{"/P/one.m", "/P/there/deep/x.m", "/P/there/y.m"}));
  EXPECT_EQ(tree.state.actualDirectoryDepth, 3);
}

TEST(TreeWalkLinks, AreFollowedToTheSameDirectoryAsOftenAsTheyLeadThere) {
  WalkedTree tree;
  tree.files.addFile("/elsewhere/y.m", "");
  tree.addLink("a", "/elsewhere");
  tree.addLink("b", "/elsewhere");
  tree.walk();
  EXPECT_EQ(tree.sources, (Lines{"/P/a/y.m", "/P/b/y.m"}));
}

TEST(TreeWalkLinks, MakeALanguageUnderTheirOwnName) {
  WalkedTree tree;
  tree.add("de.lproj/Localizable.strings");
  tree.addLink("fr.lproj", "de.lproj");
  tree.walk();
  EXPECT_EQ(tree.languageLines(),
            (Lines{"de -1 /P/de.lproj/Localizable.strings", "fr -1 /P/fr.lproj/Localizable.strings"}));
}

TEST(TreeWalkLinks, AreSkippedWhenTheyAreBroken) {
  WalkedTree tree;
  tree.addLink("a.m", "nowhere.m");
  tree.addLink("de.lproj", "nowhere");
  tree.addLink("itself", "itself");
  tree.add("z.m");
  tree.walk();
  EXPECT_EQ(tree.sources, Lines{"/P/z.m"});
  EXPECT_EQ(tree.languageLines(), Lines());
  EXPECT_EQ(tree.state.actualDirectoryDepth, 1);
}

TEST(TreeWalkLinks, AreFollowedToTwentyThousandDirectoriesAndNoMore) {
  WalkedTree tree;
  for (int inner = 0; inner < 199; ++inner) tree.files.addDirectory("/elsewhere/" + std::to_string(1000 + inner));
  for (int link = 0; link < 102; ++link) tree.addLink("link" + std::to_string(1000 + link), "/elsewhere");
  tree.add("z/z.m");
  tree.walk();
  EXPECT_EQ(tree.state.actualDirectoryDepth, 20'002);  // and the directory itself, and z
  EXPECT_EQ(tree.cutOff, FileUrl("/P/link1100"));
  EXPECT_EQ(tree.sources, Lines{"/P/z/z.m"});
}

TEST(TreeWalkLinks, AreNotFollowedBackToADirectoryAroundThem) {
  WalkedTree tree;
  tree.add("a/b/x.m");
  tree.addLink("a/b/up", "..");
  tree.addLink("a/b/top", "/P");
  tree.addLink("a/b/here", ".");
  tree.addLink("here", "/P");
  tree.walk();
  EXPECT_EQ(tree.sources, Lines{"/P/a/b/x.m"});
  EXPECT_EQ(tree.state.actualDirectoryDepth, 3);
}

TEST(TreeWalkLinks, AreFollowedBackToADirectoryThatWasLeft) {
  WalkedTree tree;
  tree.add("a/x.m");
  tree.addLink("b", "a");
  tree.walk();
  EXPECT_EQ(tree.sources, (Lines{"/P/a/x.m", "/P/b/x.m"}));
}

TEST(TreeWalkLinks, AreNotFollowedRoundACircleOfTwo) {
  WalkedTree tree;
  tree.add("a/x.m");
  tree.add("b/y.m");
  tree.addLink("a/toB", "/P/b");
  tree.addLink("b/toA", "/P/a");
  tree.walk();
  EXPECT_EQ(tree.sources, (Lines{"/P/a/toB/y.m", "/P/a/x.m", "/P/b/toA/x.m", "/P/b/y.m"}));
  EXPECT_EQ(tree.state.actualDirectoryDepth, 5);
}

TEST(TreeWalkLinks, MakeALanguageAlsoWhenTheyAreNotFollowed) {
  WalkedTree tree;
  tree.addLink("de.lproj", "/P");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines{"de 1 /P/de.lproj"});
  EXPECT_EQ(tree.state.actualDirectoryDepth, 1);
}

}  // namespace
}  // namespace glossmill
