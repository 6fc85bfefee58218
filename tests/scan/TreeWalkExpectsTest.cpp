#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "scan/TreeWalk.h"
#include "scan/WalkedTree.h"

namespace glossmill {
namespace {

using Lines = std::vector<std::string>;

/// Which sources a walk says that it is going to open, and which it opens.
class ExpectingTree : public WalkedTree {
 public:
  ExpectingTree() {
    files.onExpect = [this](const std::vector<FileUrl>& expected) {
      std::string line = "expects";
      for (const FileUrl& file : expected) line += " " + file.path();
      asked.push_back(line);
    };
    files.onOpen = [this](const std::string& path) { asked.push_back("opens " + path); };
  }
  Lines asked;
};

TEST(TreeWalkExpects, TheSourcesInFrontOfTheNextDirectory) {
  ExpectingTree tree;
  for (const auto* path : {"a.m", "b.m", "c/d.m", "c/e.m", "f.m", "g.m"}) tree.add(path);
  tree.walk();
  EXPECT_EQ(tree.asked,
            (Lines{"expects /P/a.m /P/b.m", "opens /P/a.m", "opens /P/b.m", "expects /P/c/d.m /P/c/e.m",
                   "opens /P/c/d.m", "opens /P/c/e.m", "expects /P/f.m /P/g.m", "opens /P/f.m", "opens /P/g.m"}));
}

TEST(TreeWalkExpects, NothingButWhatItOpens) {
  ExpectingTree tree;
  for (const auto* path : {"a.m", "b.h", "c.m", "d.m", "e.m"}) tree.add(path);
  tree.walk("a.m c.m e.m");
  EXPECT_EQ(tree.asked, (Lines{"expects /P/a.m /P/c.m /P/e.m", "opens /P/a.m", "opens /P/c.m", "opens /P/e.m"}));
}

TEST(TreeWalkExpects, NoLinksWhereverTheyLead) {
  ExpectingTree tree;
  for (const auto* path : {"a.m", "d.m"}) tree.add(path);
  tree.addLink("b.m", "a.m");
  tree.addLink("c.m", "nowhere.m");
  tree.walk();
  EXPECT_EQ(tree.asked, (Lines{"opens /P/a.m", "opens /P/b.m", "opens /P/d.m"}));
}

TEST(TreeWalkExpects, NothingMoreOnceItIsCanceled) {
  ExpectingTree tree;
  for (const auto* path : {"a.m", "b.m", "c/d.m", "c/e.m"}) tree.add(path);
  tree.files.onOpen = [&tree](const std::string&) { tree.canceled.set(true); };
  tree.walk();
  EXPECT_EQ(tree.asked, Lines{"expects /P/a.m /P/b.m"});
}

}  // namespace
}  // namespace glossmill
