#include <gtest/gtest.h>

#include "platform/ReadText.h"
#include "safety/WatchedReading.h"
#include "support/InMemorySaveDisk.h"

namespace glossmill {
namespace {

class WatchedReadingTest : public testing::Test {
 protected:
  WatchedReadingTest() { files.addFile("/x/a.m", "text"); }
  std::vector<std::string> places() {
    std::vector<std::string> paths;
    for (const UnreadPlace& place : watch.unread()) paths.push_back(place.url.path());
    return paths;
  }
  using Paths = std::vector<std::string>;

  InMemoryFiles files;
  InMemorySaveDisk disk{files};
  WatchedReading watch{files, disk};
};

TEST_F(WatchedReadingTest, WhatIsReadCompletelyLeavesNothing) {
  EXPECT_TRUE(watch.list(FileUrl("/x")));
  EXPECT_EQ(watch.kindOf(FileUrl("/x/a.m")), EntryKind::File);
  EXPECT_EQ(readText(watch, FileUrl("/x/a.m")).value(), "text");
  EXPECT_EQ(places(), Paths());
}

TEST_F(WatchedReadingTest, TellsItsDiskWhatIsExpected) {
  std::vector<FileUrl> told;
  files.onExpect = [&told](const std::vector<FileUrl>& expected) { told = expected; };
  watch.expect({FileUrl("/x/a.m"), FileUrl("/x/b.m")});
  EXPECT_EQ(told, (std::vector{FileUrl("/x/a.m"), FileUrl("/x/b.m")}));
}

TEST_F(WatchedReadingTest, ADirectoryThatCannotBeListedIsNamedWithItsReason) {
  files.failListing("/x", "No.");
  EXPECT_FALSE(watch.list(FileUrl("/x")));
  EXPECT_EQ(watch.unread(), (std::vector{UnreadPlace{FileUrl("/x"), "No.", EntryKind::Directory}}));
}

TEST_F(WatchedReadingTest, ADirectoryThatCannotBeListedIsToldOnce) {
  files.failListing("/x", "No.");
  std::vector<std::string> told;
  watch.onUnlisted = [&told](const FileUrl& directory, const Error& error) {
    told.push_back(directory.path() + ": " + error.sentence);
  };
  EXPECT_FALSE(watch.list(FileUrl("/x")));
  EXPECT_FALSE(watch.list(FileUrl("/x")));
  EXPECT_EQ(told, std::vector<std::string>{"/x: No."});
}

TEST_F(WatchedReadingTest, AFileThatCannotBeOpenedOrReadIsNamedOnce) {
  files.failOpening("/x/a.m", "No.");
  EXPECT_FALSE(watch.open(FileUrl("/x/a.m")));
  EXPECT_FALSE(watch.open(FileUrl("/x/a.m")));
  files.addFile("/x/b.m", "text");
  files.failReadingAfter("/x/b.m", 2, "Broken.");
  EXPECT_FALSE(readText(watch, FileUrl("/x/b.m")));
  EXPECT_EQ(places(), (Paths{"/x/a.m", "/x/b.m"}));
}

TEST_F(WatchedReadingTest, AFileThatGrowsWhileItIsReadIsNotWhole) {
  const auto reader = watch.open(FileUrl("/x/a.m"));
  files.addFile("/x/a.m", "longer text");
  EXPECT_TRUE(readText(*reader.value()));
  EXPECT_EQ(places(), Paths{"/x/a.m"});
}

TEST_F(WatchedReadingTest, AFileThatVanishesIsNamed) {
  const auto reader = watch.open(FileUrl("/x/a.m"));
  files.remove("/x/a.m");
  EXPECT_TRUE(readText(*reader.value()));
  EXPECT_EQ(watch.kindOf(FileUrl("/x/a.m")), EntryKind::Missing);
  EXPECT_EQ(places(), Paths{"/x/a.m"});
}

TEST_F(WatchedReadingTest, ALinkThatLeadsNowhereIsNoMishap) {
  files.addLink("/x/link", "nowhere");
  EXPECT_EQ(watch.kindOf(FileUrl("/x/link")), EntryKind::Missing);
  EXPECT_EQ(places(), Paths());
}

TEST_F(WatchedReadingTest, StartsAnew) {
  watch.note(FileUrl("/x"), "No.");
  watch.clear();
  EXPECT_EQ(places(), Paths());
}

}  // namespace
}  // namespace glossmill
