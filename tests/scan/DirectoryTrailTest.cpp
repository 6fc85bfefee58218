#include <gtest/gtest.h>

#include "scan/DirectoryTrail.h"
#include "support/InMemoryFiles.h"

namespace glossmill {
namespace {

bool leadsBack(InMemoryFiles& files, const DirectoryTrail& trail, std::string_view path) {
  const FileUrl url(path);
  const auto entries = files.list(url.parent());
  for (const DirectoryEntry& entry : entries.value()) {
    if (entry.name == url.lastPathComponent()) return trail.leadsBack(url, entry);
  }
  ADD_FAILURE() << path << " is not listed";
  return false;
}

/// Inside of /P and /P/a.
class DirectoryTrailTest : public testing::Test {
 protected:
  DirectoryTrailTest() {
    files.addDirectory("/P/a/b");
    files.addDirectory("/P/c");
    trail.enter(FileUrl("/P"));
    trail.enter(FileUrl("/P/a"));
  }

  InMemoryFiles files;
  DirectoryTrail trail{files};
};

TEST_F(DirectoryTrailTest, DoesNotLeadBackThroughAPlainDirectory) {
  EXPECT_FALSE(leadsBack(files, trail, "/P/a/b"));
  EXPECT_FALSE(leadsBack(files, trail, "/P/c"));
}

TEST_F(DirectoryTrailTest, LeadsBackThroughALinkToAnyOfItsDirectories) {
  files.addLink("/P/a/up", "..");
  files.addLink("/P/a/here", "/P/a");
  files.addLink("/P/a/around", "/P/c/../a");
  EXPECT_TRUE(leadsBack(files, trail, "/P/a/up"));
  EXPECT_TRUE(leadsBack(files, trail, "/P/a/here"));
  EXPECT_TRUE(leadsBack(files, trail, "/P/a/around"));
}

TEST_F(DirectoryTrailTest, DoesNotLeadBackThroughALinkToAnotherDirectory) {
  files.addLink("/P/a/aside", "/P/c");
  files.addLink("/P/a/down", "b");
  EXPECT_FALSE(leadsBack(files, trail, "/P/a/aside"));
  EXPECT_FALSE(leadsBack(files, trail, "/P/a/down"));
}

TEST_F(DirectoryTrailTest, DoesNotLeadBackThroughABrokenLink) {
  files.addLink("/P/a/broken", "nowhere");
  EXPECT_FALSE(leadsBack(files, trail, "/P/a/broken"));
}

/// The entry of a link or of a plain directory.
DirectoryEntry entryOf(bool isLink) {
  return {"entry", EntryKind::Directory, isLink};
}

TEST(CutOffTrail, CountsWhatIsBehindALinkAndLetsPlainDirectoriesIn) {
  InMemoryFiles files;
  files.addDirectory("/P");
  DirectoryTrail trail(files, 2);
  trail.enter(FileUrl("/P"));
  EXPECT_FALSE(trail.keepsOut(FileUrl("/P/link"), entryOf(true)));
  trail.enter(FileUrl("/P/link"), entryOf(true));
  EXPECT_FALSE(trail.keepsOut(FileUrl("/P/link/plain"), entryOf(false)));
  trail.enter(FileUrl("/P/link/plain"), entryOf(false));
  EXPECT_TRUE(trail.keepsOut(FileUrl("/P/link/plain/more"), entryOf(false)));
  trail.leave();
  trail.leave();
  EXPECT_FALSE(trail.keepsOut(FileUrl("/P/plain"), entryOf(false)));
  EXPECT_TRUE(trail.keepsOut(FileUrl("/P/other"), entryOf(true)));
  EXPECT_EQ(trail.cutOff(), FileUrl("/P/link/plain/more"));
}

TEST(CutOffTrail, TakesALinkBackForNoneTooMany) {
  InMemoryFiles files;
  files.addDirectory("/P/a");
  files.addLink("/P/a/up", "..");
  DirectoryTrail trail(files, 0);
  trail.enter(FileUrl("/P"));
  EXPECT_TRUE(trail.keepsOut(FileUrl("/P/a/up"), entryOf(true)));
  EXPECT_EQ(trail.cutOff(), std::nullopt);
}

TEST_F(DirectoryTrailTest, ForgetsADirectoryThatWasLeft) {
  files.addLink("/P/back", "a");
  EXPECT_TRUE(leadsBack(files, trail, "/P/back"));
  trail.leave();
  EXPECT_FALSE(leadsBack(files, trail, "/P/back"));
}

TEST_F(DirectoryTrailTest, KnowsADirectoryThatWasEnteredThroughALink) {
  files.addLink("/P/aside", "c");
  files.addLink("/P/c/back", "/P/c");
  trail.enter(FileUrl("/P/aside"));
  EXPECT_TRUE(leadsBack(files, trail, "/P/c/back"));
}

}  // namespace
}  // namespace glossmill
