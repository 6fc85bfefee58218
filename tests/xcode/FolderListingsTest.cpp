#include <gtest/gtest.h>

#include "support/InMemoryFiles.h"
#include "xcode/FolderListings.h"

namespace glossmill {
namespace {

TEST(FolderListings, ListsEachDirectoryOnce) {
  InMemoryFiles files;
  files.addFile("/p/a/b.m", "");
  FolderListings folders(files, "/p");
  EXPECT_EQ(folders.kindOf("/p/a/b.m"), EntryKind::File);
  EXPECT_EQ(folders.kindOf("/p/a"), EntryKind::Directory);
  EXPECT_EQ(folders.kindOf("/p/a/c.m"), EntryKind::Missing);
  ASSERT_TRUE(folders.entries("/p/a"));
  EXPECT_EQ(folders.entries("/p/a")->size(), 1u);
  EXPECT_EQ(files.listed(), (std::vector<std::string>{"/p", "/p/a"}));
}

TEST(FolderListings, NeverAsksForWhatIsNotThere) {
  InMemoryFiles files;
  files.addDirectory("/p");
  FolderListings folders(files, "/p");
  EXPECT_FALSE(folders.entries("/p/a/b/c"));
  EXPECT_EQ(files.listed(), (std::vector<std::string>{"/p"}));
  EXPECT_TRUE(files.askedKinds().empty());
}

TEST(FolderListings, KnowsWhatLiesOutsideAndWhatIsHidden) {
  InMemoryFiles files;
  files.addFile("/q/a.m", "");
  files.addFile("/p/.b.m", "");
  FolderListings folders(files, "/p");
  EXPECT_EQ(folders.kindOf("/q/a.m"), EntryKind::File);
  EXPECT_EQ(folders.kindOf("/q/b.m"), EntryKind::Missing);
  EXPECT_EQ(folders.kindOf("/p/.b.m"), EntryKind::File);
}

TEST(FolderListings, TakesPathsApart) {
  EXPECT_EQ(pathInside("/", "a"), "/a");
  EXPECT_EQ(pathInside("/a", "b/c"), "/a/b/c");
  EXPECT_EQ(directoryOf("/a/b"), "/a");
  EXPECT_EQ(directoryOf("/a"), "/");
  EXPECT_EQ(nameOfPath("/a/b"), "b");
}

}  // namespace
}  // namespace glossmill
