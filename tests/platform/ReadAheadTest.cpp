#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <vector>

#include "platform/ReadAhead.h"
#include "platform/ReadBytes.h"
#include "support/InMemoryFiles.h"
#include "support/InMemorySaveDisk.h"

namespace glossmill {
namespace {

using namespace std::chrono_literals;

using Paths = std::vector<std::string>;

/// Stamps of files that were written this moment.
class FreshStamps : public InMemorySaveDisk {
 public:
  using InMemorySaveDisk::InMemorySaveDisk;
  Result<std::optional<FileStamp>> stampOf(const FileUrl& file) override {
    auto stamp = InMemorySaveDisk::stampOf(file);
    if (stamp && stamp.value() && file == fresh) stamp.value()->changed = now() * 1'000'000'000;
    return stamp;
  }
  FileUrl fresh;
};

/// A disk with the files /P/0.m, /P/1.m …, each of which says its number.
class ReadAheadTest : public testing::Test {
 protected:
  static constexpr std::size_t kFiles = ReadAhead::kFilesAlone + 8;

  ReadAheadTest() {
    for (std::size_t number = 0; number < kFiles; ++number) disk.addFile(pathOf(number), textOf(number));
    disk.onOpen = [this](const std::string& path) {
      const std::lock_guard lock(m_mutex);
      m_begun.push_back(path);
      m_arrived.notify_all();
    };
  }

  static std::string pathOf(std::size_t number) { return "/P/" + std::to_string(number) + ".m"; }
  static std::string textOf(std::size_t number) { return "number " + std::to_string(number); }
  static std::vector<FileUrl> urls(std::size_t first, std::size_t end) {
    std::vector<FileUrl> files;
    for (std::size_t number = first; number < end; ++number) files.emplace_back(pathOf(number));
    return files;
  }
  /// The thread reads one file after the other, so those in front of one that it has begun are there.
  [[nodiscard]] bool waitUntilBegun(const std::string& path) {
    std::unique_lock lock(m_mutex);
    return m_arrived.wait_for(lock, 30s,
                              [&] { return std::find(m_begun.begin(), m_begun.end(), path) != m_begun.end(); });
  }
  long timesOpened(const std::string& path) {
    const Paths opened = disk.opened();
    return std::count(opened.begin(), opened.end(), path);
  }
  static std::string contentOf(FileReading& files, const std::string& path) {
    const Result<std::string> bytes = readBytes(files, FileUrl(path));
    return bytes ? bytes.value() : "error: " + bytes.error().sentence;
  }

  InMemoryFiles disk;
  FreshStamps stamps{disk};

 private:
  std::mutex m_mutex;
  std::condition_variable m_arrived;
  Paths m_begun;
};

TEST_F(ReadAheadTest, FindsExpectedFilesInMemory) {
  ReadAhead ahead(disk, stamps, 2);
  ahead.expect(urls(0, kFiles));
  ASSERT_TRUE(waitUntilBegun(pathOf(3)));
  for (std::size_t number = 0; number < 3; ++number) {
    EXPECT_EQ(contentOf(ahead, pathOf(number)), textOf(number));
    EXPECT_EQ(timesOpened(pathOf(number)), 1) << number;
  }
}

TEST_F(ReadAheadTest, GivesEveryFileInWhateverOrderTheyAreOpened) {
  ReadAhead ahead(disk, stamps, 2);
  ahead.expect(urls(0, kFiles));
  for (std::size_t number = 0; number < kFiles; number += 3)
    EXPECT_EQ(contentOf(ahead, pathOf(number)), textOf(number));
  for (std::size_t number = kFiles; number-- > 0;) EXPECT_EQ(contentOf(ahead, pathOf(number)), textOf(number));
}

TEST_F(ReadAheadTest, GoesOnWhenTheFirstFilesWereUsed) {
  ReadAhead ahead(disk, stamps, 2);
  ahead.expect(urls(0, kFiles));
  for (std::size_t number = 0; number + 1 < kFiles; ++number) {
    EXPECT_EQ(contentOf(ahead, pathOf(number)), textOf(number));
    ASSERT_TRUE(waitUntilBegun(pathOf(number + 1)));
  }
}

TEST_F(ReadAheadTest, ReadsAFileAnewThatWasWrittenMeanwhile) {
  ReadAhead ahead(disk, stamps, 2);
  ahead.expect(urls(0, kFiles));
  ASSERT_TRUE(waitUntilBegun(pathOf(3)));
  disk.addFile(pathOf(0), "NUMBER 0");
  EXPECT_EQ(contentOf(ahead, pathOf(0)), "NUMBER 0");
}

TEST_F(ReadAheadTest, HasTheTextOfWhatItReadAtHand) {
  disk.addFile(pathOf(0), "\xEF\xBB\xBFÖffnen");
  disk.addFile(pathOf(1), std::string("\xFF\xFE\xD6\0f\0", 6));
  disk.addFile(pathOf(2), "\xFF");
  ReadAhead ahead(disk, stamps, 2);
  ahead.expect(urls(0, kFiles));
  ASSERT_TRUE(waitUntilBegun(pathOf(4)));
  EXPECT_EQ(ahead.open(FileUrl(pathOf(0))).value()->textAtHand(), "Öffnen");
  EXPECT_EQ(ahead.open(FileUrl(pathOf(1))).value()->textAtHand(), "Öf");
  EXPECT_EQ(ahead.open(FileUrl(pathOf(2))).value()->textAtHand(), std::nullopt);
  EXPECT_EQ(ahead.open(FileUrl(pathOf(3))).value()->textAtHand(), textOf(3));
}

TEST_F(ReadAheadTest, DoesNotGiveAFileThatIsGoneByNow) {
  ReadAhead ahead(disk, stamps, 2);
  ahead.expect(urls(0, kFiles));
  ASSERT_TRUE(waitUntilBegun(pathOf(3)));
  disk.remove(pathOf(0));
  EXPECT_EQ(contentOf(ahead, pathOf(0)), contentOf(disk, pathOf(0)));
  EXPECT_TRUE(contentOf(ahead, pathOf(0)).starts_with("error: "));
}

TEST_F(ReadAheadTest, LeavesTheErrorsOfADiskAsTheyAre) {
  disk.failOpening(pathOf(0), "It is locked.");
  disk.failReadingAfter(pathOf(1), 3, "The disk was pulled out.");
  disk.endReadingAfter(pathOf(2), 3);
  ReadAhead ahead(disk, stamps, 2);
  ahead.expect(urls(0, kFiles));
  ASSERT_TRUE(waitUntilBegun(pathOf(3)));
  EXPECT_EQ(contentOf(ahead, pathOf(0)), "error: It is locked.");
  EXPECT_EQ(contentOf(ahead, pathOf(1)), "error: The disk was pulled out.");
  EXPECT_EQ(contentOf(ahead, pathOf(2)), "num");
}

TEST_F(ReadAheadTest, PassesOverAFileThatWasWrittenThisMoment) {
  stamps.fresh = FileUrl(pathOf(1));
  ReadAhead ahead(disk, stamps, 2);
  ahead.expect(urls(0, kFiles));
  ASSERT_TRUE(waitUntilBegun(pathOf(2)));
  EXPECT_EQ(timesOpened(pathOf(1)), 0);
  EXPECT_EQ(contentOf(ahead, pathOf(1)), textOf(1));
}

TEST_F(ReadAheadTest, PassesOverALargeFile) {
  const std::string large(ReadAhead::kLargestFile + 1, 'x');
  disk.addFile(pathOf(1), large);
  ReadAhead ahead(disk, stamps, 2);
  ahead.expect(urls(0, kFiles));
  ASSERT_TRUE(waitUntilBegun(pathOf(2)));
  EXPECT_EQ(timesOpened(pathOf(1)), 0);
  EXPECT_EQ(contentOf(ahead, pathOf(1)), large);
}

TEST_F(ReadAheadTest, ForgetsWhatWasExpectedBefore) {
  ReadAhead ahead(disk, stamps, 2);
  ahead.expect(urls(0, kFiles - 2));
  ASSERT_TRUE(waitUntilBegun(pathOf(0)));
  ahead.expect(urls(kFiles - 2, kFiles));
  ASSERT_TRUE(waitUntilBegun(pathOf(kFiles - 1)));
  EXPECT_EQ(timesOpened(pathOf(kFiles - 3)), 0);
}

TEST_F(ReadAheadTest, HoldsAFewFilesAtMost) {
  ReadAhead ahead(disk, stamps, 2);
  ahead.expect(urls(0, kFiles));
  ASSERT_TRUE(waitUntilBegun(pathOf(31)));
  EXPECT_EQ(contentOf(ahead, pathOf(kFiles - 1)), textOf(kFiles - 1));
  EXPECT_LE(disk.opened().size(), 33U);
}

TEST_F(ReadAheadTest, ReadsNothingAheadOfAFewFiles) {
  ReadAhead ahead(disk, stamps, 2);
  ahead.expect(urls(0, ReadAhead::kFilesAlone - 1));
  EXPECT_EQ(contentOf(ahead, pathOf(5)), textOf(5));
  EXPECT_EQ(disk.opened(), Paths{pathOf(5)});
}

TEST_F(ReadAheadTest, ReadsNothingAheadWhereThereIsOneProcessor) {
  ReadAhead ahead(disk, stamps, 1);
  ahead.expect(urls(0, kFiles));
  EXPECT_EQ(contentOf(ahead, pathOf(5)), textOf(5));
  EXPECT_EQ(disk.opened(), Paths{pathOf(5)});
}

TEST_F(ReadAheadTest, EndsWithFilesThatNobodyOpened) {
  {
    ReadAhead ahead(disk, stamps, 2);
    ahead.expect(urls(0, kFiles));
    ASSERT_TRUE(waitUntilBegun(pathOf(0)));
  }
  const std::size_t opened = disk.opened().size();
  EXPECT_LE(opened, 32U);
  EXPECT_EQ(disk.opened().size(), opened);
}

}  // namespace
}  // namespace glossmill
