#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <new>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "platform/FakeFileReading.h"
#include "platform/TextAhead.h"
#include "text/Utf8.h"

namespace glossmill {
namespace {

using namespace std::chrono_literals;

const FileUrl kLongFile("/Harbour/de.lproj/Localizable.strings");
constexpr std::size_t kOneWindow = TextReader::kWindow;
constexpr std::size_t kAlone = TextAhead::kWindowsAlone * kOneWindow;

std::string linesOf(std::size_t bytes) {
  std::string text;
  for (int line = 0; text.size() < bytes; ++line) text += "\"Schlüssel " + std::to_string(line) + "\" = \"Wert\";\n";
  return text;
}

/// What a caller gets of a file.
struct Heard {
  std::string text;
  std::string problem;
};

Heard heardFrom(TextAhead& ahead) {
  Heard heard;
  const Outcome outcome = ahead.readPieces(kLongFile, [&heard](std::string_view piece) { heard.text += piece; });
  if (!outcome) heard.problem = outcome.error().sentence;
  return heard;
}

/// A disk that can wait until another thread reads from it, and counts whoever reads.
class WatchedDisk : public FakeFileReading {
 public:
  using FakeFileReading::FakeFileReading;

  Result<std::unique_ptr<ByteReader>> open(const FileUrl& file) override {
    auto opened = FakeFileReading::open(file);
    return std::unique_ptr<ByteReader>(std::make_unique<Reader>(*this, std::move(opened.value())));
  }
  /// False when nobody but the caller reads for a long time.
  bool waitForOther() {
    std::unique_lock lock(m_mutex);
    return m_arrived.wait_for(lock, 30s, [this] { return m_byOthers > 0; });
  }
  std::size_t byOthers() {
    const std::lock_guard lock(m_mutex);
    return m_byOthers;
  }
  /// The reading that follows on another thread runs out of memory.
  void runOutOfMemory() { m_throws = true; }

 private:
  class Reader : public ByteReader {
   public:
    Reader(WatchedDisk& disk, std::unique_ptr<ByteReader> inner) : m_disk(disk), m_inner(std::move(inner)) {}
    Result<std::size_t> read(std::span<char> buffer) override {
      m_disk.note();
      return m_inner->read(buffer);
    }

   private:
    WatchedDisk& m_disk;
    std::unique_ptr<ByteReader> m_inner;
  };

  void note() {
    const std::lock_guard lock(m_mutex);
    if (std::this_thread::get_id() == m_caller) return;
    ++m_byOthers;
    m_arrived.notify_all();
    if (m_throws) throw std::bad_alloc();
  }

  const std::thread::id m_caller = std::this_thread::get_id();
  std::mutex m_mutex;
  std::condition_variable m_arrived;
  std::size_t m_byOthers = 0;
  bool m_throws = false;
};

TEST(TextAhead, PassesTheWholeTextOnWhateverItsLength) {
  for (const std::size_t bytes : {std::size_t{0}, std::size_t{1}, kOneWindow - 1, kOneWindow, kOneWindow + 1,
                                  kAlone - 1, kAlone, kAlone + 1, 3 * kAlone, 3 * kAlone + 77}) {
    const std::string text(bytes, 'x');
    FakeFileReading disk(kLongFile, text);
    TextAhead ahead(disk, 2);
    const Heard heard = heardFrom(ahead);
    EXPECT_TRUE(heard.text == text) << bytes << " bytes gave " << heard.text.size();
    EXPECT_EQ(heard.problem, "");
  }
}

TEST(TextAhead, ReadsFileAfterFile) {
  const std::string text = linesOf(2 * kAlone);
  FakeFileReading disk(kLongFile, text);
  TextAhead ahead(disk, 2);
  for (int file = 0; file < 20; ++file) EXPECT_TRUE(heardFrom(ahead).text == text) << "file " << file;
}

TEST(TextAhead, DeliversPiecesOfWholeCharactersThatTogetherAreTheText) {
  std::string text;
  while (text.size() < 3 * kAlone) text += "Größe € 泊\n";
  FakeFileReading disk(kLongFile, text);
  TextAhead ahead(disk, 2);
  std::string together;
  std::size_t longest = 0;
  const Outcome outcome = ahead.readPieces(kLongFile, [&](std::string_view piece) {
    EXPECT_TRUE(isValidUtf8(piece));
    longest = std::max(longest, piece.size());
    together.append(piece);
  });
  EXPECT_TRUE(outcome.ok());
  EXPECT_TRUE(together == text);
  EXPECT_LE(longest, kOneWindow);
}

TEST(TextAhead, DeliversNothingForAnEmptyFile) {
  FakeFileReading disk(kLongFile, "");
  TextAhead ahead(disk, 2);
  bool called = false;
  EXPECT_TRUE(ahead.readPieces(kLongFile, [&called](std::string_view) { called = true; }).ok());
  EXPECT_FALSE(called);
}

TEST(TextAhead, StopsReadingAtTheFirstMalformedPiece) {
  FakeFileReading disk(kLongFile, "\xFF" + std::string(10 * kOneWindow, 'a'));
  TextAhead ahead(disk, 2);
  EXPECT_FALSE(ahead.readPieces(kLongFile, [](std::string_view) {}).ok());
  EXPECT_EQ(disk.readCount(), 1U);
}

TEST(TextAhead, ReadsTheNextPieceWhileTheCallerLooksAtOne) {
  WatchedDisk disk(kLongFile, linesOf(4 * kAlone));
  TextAhead ahead(disk, 2);
  std::size_t bytes = 0;
  bool isMet = true;
  const Outcome outcome = ahead.readPieces(kLongFile, [&](std::string_view piece) {
    bytes += piece.size();
    if (bytes > kAlone + kOneWindow) isMet = isMet && disk.waitForOther();
  });
  EXPECT_TRUE(outcome.ok());
  EXPECT_TRUE(isMet);
}

TEST(TextAhead, ReadsShortFilesWithoutAThread) {
  WatchedDisk disk(kLongFile, linesOf(kOneWindow / 2));
  TextAhead ahead(disk, 2);
  for (std::size_t file = 0; file < TextAhead::kWindowsAlone; ++file) heardFrom(ahead);
  EXPECT_EQ(disk.byOthers(), 0U);
}

TEST(TextAhead, ReadsWithoutAThreadWhereThereIsOneProcessor) {
  const std::string text = linesOf(4 * kAlone);
  WatchedDisk disk(kLongFile, text);
  TextAhead ahead(disk, 1);
  EXPECT_TRUE(heardFrom(ahead).text == text);
  EXPECT_EQ(disk.byOthers(), 0U);
}

TEST(TextAhead, GivesWhatStandsInFrontOfAnErrorAndThenTheError) {
  const std::string text = linesOf(3 * kAlone);
  for (const unsigned processors : {1U, 2U}) {
    FakeFileReading disk(kLongFile, text);
    disk.failAfter(2 * kAlone);
    TextAhead ahead(disk, processors);
    const Heard heard = heardFrom(ahead);
    EXPECT_EQ(heard.problem, "The disk was pulled out.") << processors;
    EXPECT_TRUE(text.starts_with(heard.text)) << processors;
    EXPECT_NEAR(static_cast<double>(heard.text.size()), 2.0 * kAlone, 4) << processors;
  }
}

TEST(TextAhead, TellsOfMalformedTextBehindTheFirstWindows) {
  std::string text = linesOf(3 * kAlone);
  text[2 * kAlone] = '\xFF';
  FakeFileReading disk(kLongFile, text);
  TextAhead ahead(disk, 2);
  EXPECT_EQ(heardFrom(ahead).problem, "The file is not valid UTF-8 and has no byte-order mark of another encoding.");
}

TEST(TextAhead, TellsOfAFileThatCannotBeOpened) {
  FakeFileReading disk(FileUrl("/elsewhere"), "");
  TextAhead ahead(disk, 2);
  EXPECT_EQ(heardFrom(ahead).problem, "There is no such file.");
}

TEST(TextAhead, ReadsNoMoreOfAFileWhoseCallerThrew) {
  FakeFileReading disk(kLongFile, linesOf(8 * kAlone));
  TextAhead ahead(disk, 2);
  std::size_t bytes = 0;
  EXPECT_THROW(static_cast<void>(ahead.readPieces(kLongFile,
                                                  [&bytes](std::string_view piece) {
                                                    bytes += piece.size();
                                                    if (bytes > kAlone) throw std::runtime_error("enough");
                                                  })),
               std::runtime_error);
  const std::size_t reads = disk.readCount();
  EXPECT_LT(reads, 3 * TextAhead::kWindowsAlone);
  EXPECT_EQ(disk.readCount(), reads);
  EXPECT_EQ(heardFrom(ahead).text.size(), linesOf(8 * kAlone).size());
}

TEST(TextAhead, BringsWhatIsThrownOnItsThreadToTheCaller) {
  WatchedDisk disk(kLongFile, linesOf(4 * kAlone));
  disk.runOutOfMemory();
  TextAhead ahead(disk, 2);
  std::size_t bytes = 0;
  EXPECT_THROW(static_cast<void>(ahead.readPieces(kLongFile,
                                                  [&](std::string_view piece) {
                                                    bytes += piece.size();
                                                    if (bytes > kAlone + kOneWindow) disk.waitForOther();
                                                  })),
               std::bad_alloc);
}

}  // namespace
}  // namespace glossmill
