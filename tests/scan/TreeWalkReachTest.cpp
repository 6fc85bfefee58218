#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "scan/WalkedTree.h"

namespace glossmill {
namespace {

using Lines = std::vector<std::string>;

/// What the walk makes of entries that have gone, come or changed since they were listed.
class TreeWalkReach : public testing::Test {
 protected:
  /// Does something when the walk opens this file or lists this directory.
  template <typename Action>
  void when(std::string_view path, Action action) {
    tree.files.onOpen = tree.files.onList = [wanted = "/P/" + std::string(path), action](const std::string& asked) {
      if (asked == wanted) action();
    };
  }
  void removeWhen(std::string_view asked, std::string_view path) {
    when(asked, [this, gone = "/P/" + std::string(path)] { tree.files.remove(gone); });
  }

  WalkedTree tree;
};

// ---- A directory that can be listed but not searched ----

TEST_F(TreeWalkReach, FindsNothingInADirectoryThatCannotBeSearched) {
  tree.add("closed/Boat.m");
  tree.add("closed/de.lproj/Localizable.strings");
  tree.add("closed/deep/Sail.m");
  tree.addLink("closed/link.m", "/P/Zebra.m");
  tree.add("Zebra.m");
  tree.files.makeUnsearchable("/P/closed");
  tree.walk();
  EXPECT_EQ(tree.sources, Lines{"/P/Zebra.m"});
  EXPECT_EQ(tree.languageLines(), Lines());
  EXPECT_EQ(tree.heard, Lines());
  EXPECT_EQ(tree.state.actualDirectoryDepth, 2);
}

TEST_F(TreeWalkReach, GivesNoLanguageAStringsFileThatIsOutOfReach) {
  tree.add("de.lproj/Localizable.strings");
  tree.files.makeUnsearchable("/P/de.lproj");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines{"de 1 /P/de.lproj"});
  EXPECT_EQ(tree.heard, Lines());
}

// ---- What is gone when the walk comes to it ----

TEST_F(TreeWalkReach, PassesOverASourceThatIsGone) {
  for (const auto* path : {"a.m", "b.m", "c.m"}) tree.add(path);
  removeWhen("a.m", "b.m");
  tree.walk();
  EXPECT_EQ(tree.sources, (Lines{"/P/a.m", "/P/c.m"}));
  EXPECT_EQ(tree.heard, Lines());
}

TEST_F(TreeWalkReach, GivesASourceThatIsThereButCannotBeOpened) {
  tree.add("a.m");
  tree.files.failOpening("/P/a.m", "Permission denied.");
  tree.walk();
  EXPECT_EQ(tree.sources, Lines{"/P/a.m"});
  EXPECT_EQ(tree.heard, Lines{"a.m: Permission denied."});
}

TEST_F(TreeWalkReach, DoesNotEnterADirectoryThatIsGone) {
  tree.add("a.m");
  tree.addDirectory("b");
  tree.addDirectory("c");
  removeWhen("a.m", "b");
  tree.walk();
  EXPECT_EQ(tree.state.actualDirectoryDepth, 2);
}

TEST_F(TreeWalkReach, EntersADirectoryThatIsThereButCannotBeListed) {
  tree.addDirectory("b");
  tree.addDirectory("c");
  tree.files.failListing("/P/b", "Permission denied.");
  tree.walk();
  EXPECT_EQ(tree.state.actualDirectoryDepth, 3);
}

TEST_F(TreeWalkReach, MakesNoLanguageOfADirectoryThatIsGone) {
  tree.add("A.m");
  tree.addDirectory("English.lproj");
  removeWhen("A.m", "English.lproj");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines());
  EXPECT_EQ(tree.heard, Lines());
}

TEST_F(TreeWalkReach, MakesALanguageOfADirectoryThatIsThereButCannotBeListed) {
  tree.addDirectory("English.lproj");
  tree.files.failListing("/P/English.lproj", "Permission denied.");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines{"en 1 /P/English.lproj"});
  EXPECT_EQ(tree.heard, Lines{"English is en"});
  EXPECT_EQ(tree.state.actualDirectoryDepth, 2);
}

TEST_F(TreeWalkReach, GivesNoLanguageAStringsFileThatIsGone) {
  tree.add("de.lproj/A.m");
  tree.add("de.lproj/Localizable.strings");
  removeWhen("de.lproj/A.m", "de.lproj/Localizable.strings");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines{"de 1 /P/de.lproj"});
  EXPECT_EQ(tree.heard, Lines());
}

// ---- What has come or changed ----

TEST_F(TreeWalkReach, TakesTheTargetOfALinkThatWasBrokenWhenItWasListed) {
  tree.add("a.m");
  tree.addLink("b.m", "/elsewhere/b.m");
  tree.addLink("de.lproj", "/elsewhere/de");
  when("a.m", [this] {
    tree.files.addFile("/elsewhere/b.m", "");
    tree.files.addFile("/elsewhere/de/Localizable.strings", "");
  });
  tree.walk();
  EXPECT_EQ(tree.sources, (Lines{"/P/a.m", "/P/b.m"}));
  EXPECT_EQ(tree.languageLines(), Lines{"de -1 /P/de.lproj/Localizable.strings"});
}

TEST_F(TreeWalkReach, EntersADirectoryThatHasTakenTheNameOfASource) {
  for (const auto* path : {"a.m", "b.m"}) tree.add(path);
  when("a.m", [this] {
    tree.files.remove("/P/b.m");
    tree.files.addFile("/P/b.m/c.m", "");
  });
  tree.walk();
  EXPECT_EQ(tree.sources, (Lines{"/P/a.m", "/P/b.m/c.m"}));
  EXPECT_EQ(tree.heard, Lines());
}

TEST_F(TreeWalkReach, TakesASourceThatHasTakenTheNameOfADirectory) {
  tree.add("a.m");
  tree.addDirectory("b.m");
  when("a.m", [this] {
    tree.files.remove("/P/b.m");
    tree.files.addFile("/P/b.m", "");
  });
  tree.walk();
  EXPECT_EQ(tree.sources, (Lines{"/P/a.m", "/P/b.m"}));
  EXPECT_EQ(tree.state.actualDirectoryDepth, 1);
}

TEST_F(TreeWalkReach, MakesNoLanguageOfAFileThatHasTakenTheNameOfItsDirectory) {
  tree.add("a.m");
  tree.addDirectory("de.lproj");
  when("a.m", [this] {
    tree.files.remove("/P/de.lproj");
    tree.files.addFile("/P/de.lproj", "");
  });
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines());
}

// ---- What it costs ----

TEST_F(TreeWalkReach, AsksOnlyWhereTheAnswerCounts) {
  for (const auto* path : {"a.m", "a.h", "b/c.m", "b/image.png", "de.lproj/Main.strings"}) tree.add(path);
  tree.add("de.lproj/Localizable.strings");
  tree.addLink("link.m", "a.m");
  tree.walk();
  EXPECT_EQ(tree.files.askedKinds(), Lines{"/P/de.lproj/Localizable.strings"});
}

}  // namespace
}  // namespace glossmill
