#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>

#include "host/PosixFiles.h"
#include "platform/ReadText.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryDirectory.h"

namespace glossmill {
namespace {

std::vector<std::string> namesIn(const FileUrl& directory) {
  const Result<std::vector<DirectoryEntry>> listed = PosixFiles().list(directory);
  EXPECT_TRUE(listed.ok());
  std::vector<std::string> names;
  if (!listed) return names;
  for (const DirectoryEntry& entry : listed.value()) names.push_back(entry.name);
  return names;
}

DirectoryEntry onlyEntryOf(const FileUrl& directory) {
  const Result<std::vector<DirectoryEntry>> listed = PosixFiles().list(directory);
  EXPECT_TRUE(listed.ok() && listed.value().size() == 1);
  return listed.ok() && !listed.value().empty() ? listed.value().front() : DirectoryEntry{};
}

std::string openingError(const FileUrl& file) {
  const auto opened = PosixFiles().open(file);
  return opened ? "" : opened.error().sentence;
}

TEST(PosixFilesListing, IsSortedByTheBytesOfTheNames) {
  const TemporaryDirectory directory;
  for (const char* name : {"b", "a", "Z", "ä", "a.m", "aa", "~"}) directory.makeFile(name, "");
  EXPECT_EQ(namesIn(directory.url()), (std::vector<std::string>{"Z", "a", "a.m", "aa", "b", "~", "ä"}));
}

TEST(PosixFilesListing, LeavesHiddenEntriesOut) {
  const TemporaryDirectory directory;
  directory.makeFile(".hidden", "");
  directory.makeDirectory(".git");
  directory.makeFile("shown", "");
  EXPECT_EQ(namesIn(directory.url()), std::vector<std::string>{"shown"});
}

TEST(PosixFilesListing, OfAnEmptyDirectoryIsEmpty) {
  const TemporaryDirectory directory;
  EXPECT_TRUE(namesIn(directory.url()).empty());
}

TEST(PosixFilesListing, TellsFilesFromDirectories) {
  const TemporaryDirectory directory;
  directory.makeDirectory("one/folder");
  directory.makeFile("two/file", "");
  const DirectoryEntry folder = onlyEntryOf(directory.url("one"));
  EXPECT_EQ(folder.kind, EntryKind::Directory);
  EXPECT_FALSE(folder.isLink);
  const DirectoryEntry file = onlyEntryOf(directory.url("two"));
  EXPECT_EQ(file.kind, EntryKind::File);
  EXPECT_FALSE(file.isLink);
}

TEST(PosixFilesListing, TellsFilesOfBytesFromAllElse) {
  const TemporaryDirectory directory;
  directory.makeFile("a file", "");
  directory.makeDirectory("b directory");
  directory.makeLink("c link", "a file");
  ASSERT_EQ(mkfifo(directory.path("d pipe").c_str(), 0600), 0);
  const Result<std::vector<DirectoryEntry>> listed = PosixFiles().list(directory.url());
  ASSERT_TRUE(listed.ok() && listed.value().size() == 4);
  EXPECT_TRUE(listed.value()[0].isRegular);
  for (std::size_t other = 1; other < 4; ++other) EXPECT_FALSE(listed.value()[other].isRegular) << other;
}

TEST(PosixFilesListing, GivesALinkTheKindOfItsTarget) {
  const TemporaryDirectory directory;
  directory.makeDirectory("target");
  directory.makeFile("file", "");
  directory.makeDirectory("one");
  directory.makeLink("one/link", "../target");
  directory.makeDirectory("two");
  directory.makeLink("two/link", directory.path("file"));
  const DirectoryEntry toDirectory = onlyEntryOf(directory.url("one"));
  EXPECT_EQ(toDirectory.kind, EntryKind::Directory);
  EXPECT_TRUE(toDirectory.isLink);
  const DirectoryEntry toFile = onlyEntryOf(directory.url("two"));
  EXPECT_EQ(toFile.kind, EntryKind::File);
  EXPECT_TRUE(toFile.isLink);
}

TEST(PosixFilesListing, CallsABrokenLinkMissing) {
  const TemporaryDirectory directory;
  directory.makeLink("link", "nowhere");
  const DirectoryEntry broken = onlyEntryOf(directory.url());
  EXPECT_EQ(broken.kind, EntryKind::Missing);
  EXPECT_TRUE(broken.isLink);
}

TEST(PosixFilesListing, CallsACircleOfLinksMissing) {
  const TemporaryDirectory directory;
  directory.makeLink("a", "a");
  EXPECT_EQ(onlyEntryOf(directory.url()).kind, EntryKind::Missing);
}

TEST(PosixFilesListing, OfNothingIsAnErrorThatSaysSo) {
  const TemporaryDirectory directory;
  const auto listed = PosixFiles().list(directory.url("nowhere"));
  ASSERT_FALSE(listed.ok());
  EXPECT_EQ(listed.error().sentence, "The directory does not exist.");
}

TEST(PosixFilesListing, OfAFileIsAnErrorThatSaysSo) {
  const TemporaryDirectory directory;
  directory.makeFile("file", "");
  const auto listed = PosixFiles().list(directory.url("file"));
  ASSERT_FALSE(listed.ok());
  EXPECT_EQ(listed.error().sentence, "A part of the path is not a directory.");
}

TEST(PosixFilesListing, OfAForbiddenDirectoryIsAnErrorThatSaysSo) {
  const TemporaryDirectory directory;
  directory.makeDirectory("closed");
  chmod(directory.path("closed").c_str(), 0);
  const OrdinaryUser ordinary;
  const auto listed = PosixFiles().list(directory.url("closed"));
  ASSERT_FALSE(listed.ok());
  EXPECT_EQ(listed.error().sentence, "You do not have permission to access the directory.");
}

TEST(PosixFilesKind, IsThatOfTheTarget) {
  const TemporaryDirectory directory;
  directory.makeFile("folder/file", "");
  directory.makeLink("link", "folder");
  directory.makeLink("broken", "nowhere");
  PosixFiles files;
  EXPECT_EQ(files.kindOf(directory.url("folder")), EntryKind::Directory);
  EXPECT_EQ(files.kindOf(directory.url("folder/file")), EntryKind::File);
  EXPECT_EQ(files.kindOf(directory.url("link")), EntryKind::Directory);
  EXPECT_EQ(files.kindOf(directory.url("link/file")), EntryKind::File);
  EXPECT_EQ(files.kindOf(directory.url("broken")), EntryKind::Missing);
  EXPECT_EQ(files.kindOf(directory.url("folder/file/below")), EntryKind::Missing);
  EXPECT_EQ(files.kindOf(FileUrl()), EntryKind::Missing);
}

TEST(PosixFilesIdentity, RecognisesAnAncestorThroughALink) {
  const TemporaryDirectory directory;
  directory.makeDirectory("a/b");
  directory.makeLink("a/b/up", "../../a");
  PosixFiles files;
  const auto identity = files.identityOf(directory.url("a"));
  ASSERT_TRUE(identity.has_value());
  EXPECT_EQ(files.identityOf(directory.url("a/b/up")), identity);
  EXPECT_EQ(files.identityOf(directory.url("a/b/up/b/up")), identity);
  EXPECT_NE(files.identityOf(directory.url("a/b")), identity);
}

TEST(PosixFilesIdentity, OfNothingIsNone) {
  const TemporaryDirectory directory;
  EXPECT_FALSE(PosixFiles().identityOf(directory.url("nowhere")).has_value());
}

TEST(PosixFilesReading, GivesTheBytesInOrderAndThenNothing) {
  const TemporaryDirectory directory;
  directory.makeFile("file", "abcdefg");
  const auto opened = PosixFiles().open(directory.url("file"));
  ASSERT_TRUE(opened.ok());
  std::string bytes;
  std::array<char, 3> window{};
  for (std::size_t round = 0; round < 10; ++round) {
    const auto got = opened.value()->read(window);
    ASSERT_TRUE(got.ok());
    if (got.value() == 0) break;
    bytes.append(window.data(), got.value());
  }
  EXPECT_EQ(bytes, "abcdefg");
}

TEST(PosixFilesReading, ReadsATextThatIsLongerThanOneWindow) {
  const TemporaryDirectory directory;
  std::string text;
  while (text.size() < 500'000) text += "zwölf Boxkämpfer\n";
  directory.makeFile("file", text);
  PosixFiles files;
  const Result<std::string> read = readText(files, directory.url("file"));
  ASSERT_TRUE(read.ok());
  EXPECT_EQ(read.value(), text);
}

TEST(PosixFilesReading, FollowsLinks) {
  const TemporaryDirectory directory;
  directory.makeFile("folder/file", "text");
  directory.makeLink("link", "folder/file");
  PosixFiles files;
  const Result<std::string> read = readText(files, directory.url("link"));
  ASSERT_TRUE(read.ok());
  EXPECT_EQ(read.value(), "text");
}

TEST(PosixFilesReading, NamesTheReasonWhyAFileDoesNotOpen) {
  const TemporaryDirectory directory;
  directory.makeFile("file", "");
  directory.makeDirectory("folder");
  directory.makeLink("circle", "circle");
  EXPECT_EQ(openingError(directory.url("nowhere")), "The file does not exist.");
  EXPECT_EQ(openingError(directory.url("folder")), "It is a directory, not a file.");
  EXPECT_EQ(openingError(directory.url("file/below")), "A part of the path is not a directory.");
  EXPECT_EQ(openingError(directory.url("circle")), "The links in the path lead round in a circle.");
  EXPECT_EQ(openingError(directory.url(std::string(300, 'x'))), "The name is too long.");
}

TEST(PosixFilesReading, OfAForbiddenFileIsAnErrorThatSaysSo) {
  const TemporaryDirectory directory;
  directory.makeFile("file", "secret");
  chmod(directory.path("file").c_str(), 0);
  const OrdinaryUser ordinary;
  EXPECT_EQ(openingError(directory.url("file")), "You do not have permission to access the file.");
}

TEST(PosixFilesReading, DoesNotWaitForTheOtherEndOfAPipe) {
  const TemporaryDirectory directory;
  ASSERT_EQ(mkfifo(directory.path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(openingError(directory.url("pipe")), "It is not a regular file.");
}

TEST(PosixFilesReading, RefusesADevice) {
  EXPECT_EQ(openingError(FileUrl("/dev/zero")), "It is not a regular file.");
}

TEST(PosixFilesDirectories, AreCreatedOneAtATime) {
  const TemporaryDirectory directory;
  PosixFiles files;
  EXPECT_TRUE(files.createDirectory(directory.url("fr.lproj"), false).ok());
  EXPECT_EQ(files.kindOf(directory.url("fr.lproj")), EntryKind::Directory);
  const Outcome tooDeep = files.createDirectory(directory.url("a/b"), false);
  ASSERT_FALSE(tooDeep.ok());
  EXPECT_EQ(tooDeep.error().sentence, "The directory does not exist.");
}

TEST(PosixFilesDirectories, AreCreatedWithThoseAboveWhenAskedTo) {
  const TemporaryDirectory directory;
  PosixFiles files;
  EXPECT_TRUE(files.createDirectory(directory.url("a/b/c"), true).ok());
  EXPECT_EQ(files.kindOf(directory.url("a/b/c")), EntryKind::Directory);
}

TEST(PosixFilesDirectories, ThatExistAreAnErrorUnlessThoseAboveWereAskedForToo) {
  const TemporaryDirectory directory;
  directory.makeDirectory("there");
  PosixFiles files;
  EXPECT_TRUE(files.createDirectory(directory.url("there"), true).ok());
  const Outcome again = files.createDirectory(directory.url("there"), false);
  ASSERT_FALSE(again.ok());
  EXPECT_EQ(again.error().sentence, "There is already something with the name of the directory.");
}

TEST(PosixFilesDirectories, DoNotReplaceAFile) {
  const TemporaryDirectory directory;
  directory.makeFile("file", "text");
  PosixFiles files;
  EXPECT_FALSE(files.createDirectory(directory.url("file"), true).ok());
  EXPECT_FALSE(files.createDirectory(directory.url("file/below"), true).ok());
  EXPECT_EQ(directory.bytesOf("file"), "text");
}

}  // namespace
}  // namespace glossmill
