#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "host/PosixSaveDisk.h"
#include "support/TemporaryDirectory.h"

namespace glossmill {
namespace {

namespace fs = std::filesystem;

class PosixSaveDiskTest : public testing::Test {
 protected:
  FileUrl at(const std::string& name) const { return directory.url(name); }
  void write(const std::string& name, const std::string& text) const { directory.makeFile(name, text); }
  std::string read(const std::string& name) const { return directory.bytesOf(name); }
  std::size_t countIn(const std::string& name) const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(directory.path(name)), fs::directory_iterator()));
  }

  TemporaryDirectory directory;
  PosixSaveDisk disk;
};

TEST_F(PosixSaveDiskTest, APreparedTextLiesBesideTheFileUntilItTakesItsPlace) {
  write("App/a.strings", "old");
  const auto prepared = disk.prepare(at("App/a.strings"), onePiece("new"), {});
  ASSERT_TRUE(prepared);
  EXPECT_EQ(read("App/a.strings"), "old");
  EXPECT_EQ(countIn("App"), 2U);
  ASSERT_TRUE(prepared.value()->putInPlace());
  EXPECT_EQ(read("App/a.strings"), "new");
  EXPECT_EQ(countIn("App"), 1U);
}

TEST_F(PosixSaveDiskTest, OneThatIsNotPutInPlaceGoesAway) {
  write("App/a.strings", "old");
  { ASSERT_TRUE(disk.prepare(at("App/a.strings"), onePiece("new"), {})); }
  EXPECT_EQ(read("App/a.strings"), "old");
  EXPECT_EQ(countIn("App"), 1U);
}

TEST_F(PosixSaveDiskTest, AFileBehindALinkOutOfTheProjectIsRefusedWithItsRealPath) {
  write("App/x", "");
  write("home/authorized_keys", "mine");
  fs::create_symlink("../home/authorized_keys", directory.path("App/a.strings"));
  fs::create_directory_symlink("../home", directory.path("App/de.lproj"));
  for (const char* name : {"App/a.strings", "App/de.lproj/authorized_keys"}) {
    const auto prepared = disk.prepare(at(name), onePiece("new"), {at("App"), {}});
    ASSERT_FALSE(prepared) << name;
    EXPECT_EQ(prepared.error().kind, ErrorKind::Outside) << name;
    EXPECT_NE(prepared.error().sentence.find("authorized_keys"), std::string::npos) << name;
  }
  EXPECT_EQ(read("home/authorized_keys"), "mine");
  EXPECT_EQ(countIn("home"), 1U);
}

TEST_F(PosixSaveDiskTest, ALinkInsideTheProjectIsWrittenThrough) {
  write("App/shared/a.strings", "old");
  fs::create_directory(directory.path("App/de.lproj"));
  fs::create_symlink("../shared/a.strings", directory.path("App/de.lproj/a.strings"));
  const auto prepared = disk.prepare(at("App/de.lproj/a.strings"), onePiece("new"), {at("App"), {}});
  ASSERT_TRUE(prepared);
  EXPECT_EQ(prepared.value()->target().path(), directory.path("App/de.lproj/../shared/a.strings"));
  ASSERT_TRUE(prepared.value()->putInPlace());
  EXPECT_EQ(read("App/shared/a.strings"), "new");
  EXPECT_TRUE(fs::is_symlink(directory.path("App/de.lproj/a.strings")));
}

TEST_F(PosixSaveDiskTest, ADirectoryThatIsSwappedForALinkBeforeTheRenameLeadsNowhere) {
  write("App/de.lproj/a.strings", "old");
  write("home/a.strings", "mine");
  const auto prepared = disk.prepare(at("App/de.lproj/a.strings"), onePiece("new"), {at("App"), {}});
  ASSERT_TRUE(prepared);
  fs::rename(directory.path("App/de.lproj"), directory.path("App/moved.lproj"));
  fs::create_directory_symlink("../home", directory.path("App/de.lproj"));
  ASSERT_TRUE(prepared.value()->putInPlace());
  EXPECT_EQ(read("home/a.strings"), "mine");
  EXPECT_EQ(read("App/moved.lproj/a.strings"), "new");
}

TEST_F(PosixSaveDiskTest, PermissionsAndExtendedAttributesSurvive) {
  write("App/a.strings", "old");
  const std::string path = at("App/a.strings").path();
  ASSERT_EQ(chmod(path.c_str(), 0640), 0);
  if (setxattr(path.c_str(), "user.origin", "harbour", 7, 0) != 0) GTEST_SKIP() << "no extended attributes here";
  const auto prepared = disk.prepare(at("App/a.strings"), onePiece("new"), {});
  ASSERT_TRUE(prepared);
  ASSERT_TRUE(prepared.value()->putInPlace());
  char value[16] = {};
  EXPECT_EQ(getxattr(path.c_str(), "user.origin", value, sizeof value), 7);
  EXPECT_STREQ(value, "harbour");
  struct stat info {};
  ASSERT_EQ(stat(path.c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 07777, 0640U);
}

TEST_F(PosixSaveDiskTest, AHardLinkedFileIsReplacedAndTheOtherNameIsKnown) {
  write("App/a.strings", "old");
  fs::create_hard_link(directory.path("App/a.strings"), directory.path("App/b.strings"));
  const auto prepared = disk.prepare(at("App/a.strings"), onePiece("new"), {});
  ASSERT_TRUE(prepared);
  EXPECT_EQ(prepared.value()->former()->links, 2U);
  ASSERT_TRUE(prepared.value()->putInPlace());
  EXPECT_EQ(read("App/b.strings"), "old");
}

TEST_F(PosixSaveDiskTest, AnErrorOfThePiecesIsPassedOnAndNothingIsLeft) {
  write("App/a.strings", "old");
  const auto prepared =
      disk.prepare(at("App/a.strings"), []() -> Result<std::string_view> { return Error{"No more."}; }, {});
  ASSERT_FALSE(prepared);
  EXPECT_EQ(prepared.error().sentence, "No more.");
  EXPECT_EQ(countIn("App"), 1U);
}

TEST_F(PosixSaveDiskTest, DirectoriesAreMadeInsideTheProjectOnly) {
  write("App/x", "");
  write("home/x", "");
  fs::create_directory_symlink("../home", directory.path("App/out"));
  EXPECT_TRUE(disk.createDirectory(at("App/a/b"), true, {at("App"), {}}));
  const Outcome outside = disk.createDirectory(at("App/out/de.lproj"), true, {at("App"), {}});
  ASSERT_FALSE(outside);
  EXPECT_EQ(outside.error().kind, ErrorKind::Outside);
  EXPECT_EQ(countIn("home"), 1U);
}

TEST_F(PosixSaveDiskTest, TemporaryFilesOfEndedProcessesAreFoundAndThoseOfRunningOnesAreNot) {
  const pid_t child = fork();
  if (child == 0) _exit(0);
  int status = 0;
  waitpid(child, &status, 0);
  write("App/.glossmill-" + std::to_string(child) + "-0.tmp", "");
  write("App/.glossmill-" + std::to_string(getpid()) + "-0.tmp", "");
  write("App/.glossmill-x-0.tmp", "");
  write("App/.glossmill-" + std::to_string(child) + ".tmp", "");
  const std::vector<FileUrl> found = disk.abandonedWrites(at("App"));
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0], at("App/.glossmill-" + std::to_string(child) + "-0.tmp"));
}

TEST_F(PosixSaveDiskTest, AStampChangesWithEveryWrite) {
  write("a", "one");
  const auto before = disk.stampOf(at("a"));
  write("a", "two");
  const auto after = disk.stampOf(at("a"));
  ASSERT_TRUE(before && after);
  EXPECT_NE(before.value(), after.value());
  EXPECT_EQ(disk.stampOf(at("b")).value(), std::nullopt);
}

TEST_F(PosixSaveDiskTest, OnlyOneHoldsTheLockAndItEndsWithItsObject) {
  auto first = disk.tryLock(directory.url());
  ASSERT_TRUE(first);
  ASSERT_TRUE(first.value());
  const auto second = disk.tryLock(directory.url());
  ASSERT_TRUE(second);
  EXPECT_FALSE(second.value());
  first.value().reset();
  EXPECT_TRUE(disk.tryLock(directory.url()).value());
}

TEST_F(PosixSaveDiskTest, WhatIsKeptIsForTheOwnerOnly) {
  ASSERT_TRUE(disk.createPrivateDirectory(at("state/glossmill/projects")));
  ASSERT_TRUE(disk.writePrivate(at("state/glossmill/projects/a"), onePiece("text")));
  struct stat info {};
  ASSERT_EQ(stat(at("state/glossmill").path().c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0700U);
  ASSERT_EQ(stat(at("state/glossmill/projects/a").path().c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0600U);
}

TEST_F(PosixSaveDiskTest, LinksAreFollowedAlsoWhereTheRestDoesNotExist) {
  write("App/x", "");
  fs::create_directory_symlink("App", directory.path("link"));
  const Result<FileUrl> resolved = disk.resolve(at("link/de.lproj/a.strings"));
  ASSERT_TRUE(resolved);
  EXPECT_EQ(resolved.value().path(), fs::canonical(directory.path()).string() + "/App/de.lproj/a.strings");
}

}  // namespace
}  // namespace glossmill
