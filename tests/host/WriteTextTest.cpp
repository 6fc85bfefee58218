#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

#include "host/PosixFiles.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryDirectory.h"

namespace glossmill {
namespace {

std::string writingError(const FileUrl& file, std::string_view text) {
  const Outcome outcome = PosixFiles().writeText(file, text);
  return outcome ? "" : outcome.error().sentence;
}

mode_t permissionsOf(const std::string& path) {
  struct stat info {};
  EXPECT_EQ(lstat(path.c_str(), &info), 0);
  return info.st_mode & 07777;
}

/// All names, hidden ones too: a temporary file left behind shows here.
std::vector<std::string> everythingIn(const std::string& path) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(path)) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

/// No file may grow beyond this while it lives, so that writing fails half-way.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : m_formerHandler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &m_former);
    const rlimit limit{bytes, m_former.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &m_former);
    std::signal(SIGXFSZ, m_formerHandler);
  }

 private:
  rlimit m_former{};
  void (*m_formerHandler)(int);
};

/// Gives these texts and then the end.
TextPieces piecesOf(std::vector<std::string_view> texts) {
  return [texts = std::move(texts), next = std::size_t{0}]() mutable {
    return next < texts.size() ? texts[next++] : std::string_view();
  };
}

TEST(WriteTextPieces, JoinsThePieces) {
  const TemporaryDirectory directory;
  EXPECT_TRUE(PosixFiles().writeTextPieces(directory.url("file"), piecesOf({"one, ", "two"})));
  EXPECT_EQ(directory.bytesOf("file"), "one, two");
  EXPECT_TRUE(PosixFiles().writeTextPieces(directory.url("empty"), piecesOf({})));
  EXPECT_EQ(directory.bytesOf("empty"), "");
}

TEST(WriteTextPieces, LeavesTheFormerFileWhenALaterPieceIsNotUtf8) {
  const TemporaryDirectory directory;
  EXPECT_EQ(writingError(directory.url("file"), "former"), "");
  const Outcome outcome = PosixFiles().writeTextPieces(directory.url("file"), piecesOf({"one, ", "\xED\xA0\x80"}));
  ASSERT_FALSE(outcome);
  EXPECT_EQ(outcome.error().sentence, "The text cannot be written as UTF-8.");
  EXPECT_EQ(directory.bytesOf("file"), "former");
  EXPECT_EQ(everythingIn(directory.path()), std::vector<std::string>{"file"});
}

TEST(WriteText, CreatesAFileWithTheTextAndNothingElse) {
  const TemporaryDirectory directory;
  EXPECT_EQ(writingError(directory.url("file"), "\n\"a\" = \"ä\"\n"), "");
  EXPECT_EQ(directory.bytesOf("file"), "\n\"a\" = \"ä\"\n");
  EXPECT_EQ(everythingIn(directory.path()), std::vector<std::string>{"file"});
}

TEST(WriteText, ReplacesTheWholeOfAFormerFile) {
  const TemporaryDirectory directory;
  directory.makeFile("file", "a text that is longer than the new one");
  EXPECT_EQ(writingError(directory.url("file"), "new"), "");
  EXPECT_EQ(directory.bytesOf("file"), "new");
}

TEST(WriteText, WritesTheEmptyText) {
  const TemporaryDirectory directory;
  directory.makeFile("file", "former");
  EXPECT_EQ(writingError(directory.url("file"), ""), "");
  EXPECT_TRUE(std::filesystem::is_empty(directory.path("file")));
}

TEST(WriteText, WritesALargeText) {
  const TemporaryDirectory directory;
  const std::string text(5'000'000, 'x');
  EXPECT_EQ(writingError(directory.url("file"), text), "");
  EXPECT_EQ(directory.bytesOf("file"), text);
}

TEST(WriteText, KeepsThePermissionsOfTheFormerFile) {
  const TemporaryDirectory directory;
  for (const mode_t permissions : {0600U, 0640U, 0664U, 0755U}) {
    directory.makeFile("file", "former");
    chmod(directory.path("file").c_str(), permissions);
    EXPECT_EQ(writingError(directory.url("file"), "new"), "");
    EXPECT_EQ(permissionsOf(directory.path("file")), permissions);
  }
}

TEST(WriteText, GivesANewFileWhatTheUserGivesToNewFiles) {
  const TemporaryDirectory directory;
  const mode_t former = umask(027);
  const std::string error = writingError(directory.url("file"), "new");
  umask(former);
  EXPECT_EQ(error, "");
  EXPECT_EQ(permissionsOf(directory.path("file")), 0640U);
}

TEST(WriteText, KeepsTheOwnerOfTheFormerFile) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can give files away";
  const TemporaryDirectory directory;
  directory.makeFile("file", "former");
  ASSERT_EQ(chown(directory.path("file").c_str(), OrdinaryUser::kNobody, OrdinaryUser::kNobody), 0);
  EXPECT_EQ(writingError(directory.url("file"), "new"), "");
  struct stat info {};
  ASSERT_EQ(stat(directory.path("file").c_str(), &info), 0);
  EXPECT_EQ(info.st_uid, OrdinaryUser::kNobody);
  EXPECT_EQ(info.st_gid, OrdinaryUser::kNobody);
}

TEST(WriteText, WritesThroughALink) {
  const TemporaryDirectory directory;
  directory.makeFile("folder/file", "former");
  directory.makeLink("link", "folder/file");
  EXPECT_EQ(writingError(directory.url("link"), "new"), "");
  EXPECT_TRUE(std::filesystem::is_symlink(directory.path("link")));
  EXPECT_EQ(directory.bytesOf("folder/file"), "new");
  EXPECT_EQ(everythingIn(directory.path()), (std::vector<std::string>{"folder", "link"}));
  EXPECT_EQ(everythingIn(directory.path("folder")), std::vector<std::string>{"file"});
}

TEST(WriteText, WritesThroughAChainOfLinks) {
  const TemporaryDirectory directory;
  directory.makeFile("folder/file", "former");
  directory.makeLink("folder/second", directory.path("folder/file"));
  directory.makeLink("first", "folder/second");
  EXPECT_EQ(writingError(directory.url("first"), "new"), "");
  EXPECT_EQ(directory.bytesOf("folder/file"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(directory.path("folder/second")));
}

TEST(WriteText, WritesBelowALinkedDirectory) {
  const TemporaryDirectory directory;
  directory.makeDirectory("folder");
  directory.makeLink("link", "folder");
  EXPECT_EQ(writingError(directory.url("link/file"), "new"), "");
  EXPECT_EQ(directory.bytesOf("folder/file"), "new");
}

TEST(WriteText, CreatesTheTargetOfABrokenLink) {
  const TemporaryDirectory directory;
  directory.makeDirectory("folder");
  directory.makeLink("link", "folder/file");
  EXPECT_EQ(writingError(directory.url("link"), "new"), "");
  EXPECT_TRUE(std::filesystem::is_symlink(directory.path("link")));
  EXPECT_EQ(directory.bytesOf("folder/file"), "new");
}

TEST(WriteText, RefusesACircleOfLinks) {
  const TemporaryDirectory directory;
  directory.makeLink("a", "b");
  directory.makeLink("b", "a");
  EXPECT_EQ(writingError(directory.url("a"), "new"), "The links in the path lead round in a circle.");
  EXPECT_EQ(everythingIn(directory.path()), (std::vector<std::string>{"a", "b"}));
}

TEST(WriteText, RefusesTextThatIsNotUtf8AndTouchesNothing) {
  const TemporaryDirectory directory;
  directory.makeFile("file", "former");
  EXPECT_EQ(writingError(directory.url("file"), "a\xFFz"), "The text cannot be written as UTF-8.");
  EXPECT_EQ(directory.bytesOf("file"), "former");
  EXPECT_EQ(everythingIn(directory.path()), std::vector<std::string>{"file"});
}

TEST(WriteText, RefusesADirectoryAndAPipe) {
  const TemporaryDirectory directory;
  directory.makeDirectory("folder");
  ASSERT_EQ(mkfifo(directory.path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(writingError(directory.url("folder"), "new"), "It is a directory, not a file.");
  EXPECT_EQ(writingError(directory.url("pipe"), "new"), "It is not a regular file.");
  EXPECT_EQ(everythingIn(directory.path()), (std::vector<std::string>{"folder", "pipe"}));
}

TEST(WriteText, RefusesADirectoryThatDoesNotExist) {
  const TemporaryDirectory directory;
  EXPECT_EQ(writingError(directory.url("nowhere/file"), "new"), "The directory does not exist.");
}

TEST(WriteText, RefusesAFileThatMayOnlyBeRead) {
  const TemporaryDirectory directory;
  directory.makeFile("file", "former");
  chmod(directory.path().c_str(), 0777);
  chmod(directory.path("file").c_str(), 0444);
  const OrdinaryUser ordinary;
  EXPECT_EQ(writingError(directory.url("file"), "new"), "You do not have permission to access the file.");
  EXPECT_EQ(directory.bytesOf("file"), "former");
}

TEST(WriteText, RefusesADirectoryThatMayOnlyBeRead) {
  const TemporaryDirectory directory;
  directory.makeFile("file", "former");
  chmod(directory.path("file").c_str(), 0666);
  chmod(directory.path().c_str(), 0555);
  {
    const OrdinaryUser ordinary;
    EXPECT_EQ(writingError(directory.url("file"), "new"), "You do not have permission to access the directory.");
    EXPECT_EQ(writingError(directory.url("other"), "new"), "You do not have permission to access the directory.");
    EXPECT_EQ(directory.bytesOf("file"), "former");
  }
  chmod(directory.path().c_str(), 0755);
  EXPECT_EQ(everythingIn(directory.path()), std::vector<std::string>{"file"});
}

TEST(WriteText, AFailureHalfWayLeavesTheFormerFileWhole) {
  const TemporaryDirectory directory;
  directory.makeFile("file", "former");
  {
    const FileSizeLimit limit(4096);
    EXPECT_EQ(writingError(directory.url("file"), std::string(10'000, 'x')),
              "The file would be larger than the system allows.");
  }
  EXPECT_EQ(directory.bytesOf("file"), "former");
  EXPECT_EQ(everythingIn(directory.path()), std::vector<std::string>{"file"});
}

TEST(WriteText, AFullDiskLeavesTheFormerFileWhole) {
  const TemporaryDirectory directory;
  directory.makeDirectory("disk");
  const std::string disk = directory.path("disk");
  if (mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=64k") != 0) GTEST_SKIP() << "only root can mount a small disk";
  directory.makeFile("disk/file", "former");
  EXPECT_EQ(writingError(directory.url("disk/file"), std::string(200'000, 'x')), "There is no space left on the disk.");
  EXPECT_EQ(directory.bytesOf("disk/file"), "former");
  EXPECT_EQ(everythingIn(disk), std::vector<std::string>{"file"});
  EXPECT_EQ(writingError(directory.url("disk/file"), "new"), "");
  EXPECT_EQ(directory.bytesOf("disk/file"), "new");
  EXPECT_EQ(umount(disk.c_str()), 0);
}

}  // namespace
}  // namespace glossmill
