#include <gtest/gtest.h>

#include "host/PosixFiles.h"
#include "platform/ReadText.h"
#include "support/InMemoryFiles.h"
#include "support/TemporaryDirectory.h"

namespace glossmill {
namespace {

const std::vector<std::string> kPaths = {"",
                                         "/App",
                                         "/App/a.m",
                                         "/App/ä.m",
                                         "/App/up",
                                         "/App/up/App",
                                         "/App/broken",
                                         "/circle",
                                         "/link",
                                         "/link/a.m",
                                         "/nowhere",
                                         "/nowhere/below",
                                         "/App/a.m/b.m",
                                         "/App/.hidden",
                                         "/copy",
                                         "/App/up/link/a.m"};

void describe(const DirectoryEntry& entry, std::string& text) {
  text += " " + entry.name + "/" + std::to_string(static_cast<int>(entry.kind)) + (entry.isLink ? "@" : "");
}

/// Everything that a disk says about a path below `root`.
std::string described(Files& files, const std::string& root, const std::string& path) {
  const FileUrl url(root + path);
  std::string text = path + ": kind " + std::to_string(static_cast<int>(files.kindOf(url))) + " holds";
  if (const auto listed = files.list(url)) {
    for (const DirectoryEntry& entry : listed.value()) describe(entry, text);
  }
  const Result<std::string> read = readText(files, url);
  text += read ? " reads " + read.value() : " does not read";
  for (const std::string& other : kPaths) {
    const auto identity = files.identityOf(url);
    if (identity && identity == files.identityOf(FileUrl(root + other))) text += " is " + other;
  }
  return text;
}

/// The same tree on both disks.
class TwoDisks : public testing::Test {
 protected:
  TwoDisks() {
    for (const char* file : {"/App/a.m", "/App/ä.m", "/App/Z.m", "/App/.hidden"}) {
      directory.makeFile(file + 1, "text");
      memory.addFile(file, "text");
    }
    link("/App/up", "..");
    link("/App/broken", "nothing/here");
    link("/circle", "circle");
    link("/link", "./App");
    link("/copy", "App/a.m");
  }

  void link(const std::string& path, const std::string& target) {
    directory.makeLink(path.substr(1), target);
    memory.addLink(path, target);
  }
  void expectSameTree() {
    for (const std::string& path : kPaths) {
      EXPECT_EQ(described(memory, "", path), described(disk, directory.url().path(), path));
    }
  }
  void expectSameOutcome(const Outcome& ofMemory, const Outcome& ofDisk) {
    ASSERT_EQ(ofMemory.ok(), ofDisk.ok());
    if (ofMemory) return;
    EXPECT_EQ(ofMemory.error().sentence, ofDisk.error().sentence);
  }

  TemporaryDirectory directory;
  InMemoryFiles memory;
  PosixFiles disk;
};

TEST_F(TwoDisks, SayTheSameOfEveryPath) {
  expectSameTree();
}

TEST_F(TwoDisks, GiveTheSameErrors) {
  for (const char* path : {"/nowhere", "/App", "/App/broken"}) {
    const auto ofMemory = memory.open(FileUrl(path));
    const auto ofDisk = disk.open(directory.url(path + 1));
    ASSERT_FALSE(ofMemory.ok());
    ASSERT_FALSE(ofDisk.ok());
    EXPECT_EQ(ofMemory.error().sentence, ofDisk.error().sentence);
  }
}

TEST_F(TwoDisks, WriteTheSame) {
  for (const char* path : {"/App/a.m", "/App/new.m", "/copy", "/link/b.m", "/App", "/nowhere/c.m"}) {
    expectSameOutcome(memory.writeText(FileUrl(path), path), disk.writeText(directory.url(path + 1), path));
  }
  expectSameOutcome(memory.writeText(FileUrl("/App/d.m"), "\xFF"), disk.writeText(directory.url("App/d.m"), "\xFF"));
  expectSameTree();
}

TEST_F(TwoDisks, CreateTheSameDirectories) {
  for (const bool intermediate : {false, true}) {
    for (const char* path : {"/App", "/App/fr.lproj", "/deep/er/still", "/App/a.m", "/App/broken"}) {
      expectSameOutcome(memory.createDirectory(FileUrl(path), intermediate),
                        disk.createDirectory(directory.url(path + 1), intermediate));
    }
  }
  expectSameTree();
}

TEST(InMemoryFiles, FailAsTheyWereTold) {
  InMemoryFiles files;
  files.addFile("/p/file", "abcdef");
  files.failListing("/p", "No list.");
  files.failOpening("/p/file", "No file.");
  files.failWriting("/p/file", "No room.");
  files.failCreating("/p/new", "No directory.");
  EXPECT_EQ(files.list(FileUrl("/p")).error().sentence, "No list.");
  EXPECT_EQ(files.open(FileUrl("/p/file")).error().sentence, "No file.");
  EXPECT_EQ(files.writeText(FileUrl("/p/file"), "x").error().sentence, "No room.");
  EXPECT_EQ(files.createDirectory(FileUrl("/p/new"), true).error().sentence, "No directory.");
  EXPECT_EQ(files.bytesOf("/p/file"), "abcdef");
  EXPECT_FALSE(files.exists("/p/new"));
}

TEST(InMemoryFiles, FailInTheMiddleOfAFile) {
  InMemoryFiles files;
  files.addFile("/file", "abcdef");
  files.failReadingAfter("/file", 4, "The disk is broken.");
  const auto reader = files.open(FileUrl("/file"));
  ASSERT_TRUE(reader.ok());
  std::string bytes(10, ' ');
  EXPECT_EQ(reader.value()->read(bytes).value(), 4U);
  EXPECT_EQ(reader.value()->read(bytes).error().sentence, "The disk is broken.");
}

TEST(InMemoryFiles, RememberWhatWasAskedInItsOrder) {
  InMemoryFiles files;
  files.addFile("/b", "");
  (void)files.list(FileUrl("/"));
  (void)files.open(FileUrl("/b"));
  (void)files.open(FileUrl("/a"));
  (void)files.writeText(FileUrl("/c"), "text");
  (void)files.createDirectory(FileUrl("/d"), false);
  EXPECT_EQ(files.listed(), std::vector<std::string>{"/"});
  EXPECT_EQ(files.opened(), (std::vector<std::string>{"/b", "/a"}));
  EXPECT_EQ(files.written(), std::vector<std::string>{"/c"});
  EXPECT_EQ(files.created(), std::vector<std::string>{"/d"});
}

TEST(InMemoryFiles, ForgetWhatIsRemovedWithAllBelowIt) {
  InMemoryFiles files;
  files.addFile("/p/sub/file", "");
  files.addFile("/p/subway", "");
  files.remove("/p/sub");
  EXPECT_FALSE(files.exists("/p/sub"));
  EXPECT_FALSE(files.exists("/p/sub/file"));
  EXPECT_TRUE(files.exists("/p/subway"));
}

}  // namespace
}  // namespace glossmill
