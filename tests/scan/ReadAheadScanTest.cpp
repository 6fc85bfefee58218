#include <gtest/gtest.h>

#include <set>
#include <string>
#include <variant>
#include <vector>

#include "model/Overloaded.h"
#include "platform/ReadAhead.h"
#include "scan/ParseFileList.h"
#include "support/InMemoryFiles.h"
#include "support/InMemorySaveDisk.h"

namespace glossmill {
namespace {

using Lines = std::vector<std::string>;

constexpr int kDirectories = 8;
constexpr int kSourcesEach = 40;

/// Phase one in a project with many sources, all read by the scan's own thread or partly ahead of it.
class ReadAheadScan : public testing::Test, private ScanListener {
 protected:
  ReadAheadScan() {
    std::string names;
    for (int source = 0; source < kSourcesEach; ++source) names += std::to_string(source) + ".m ";
    disk.addFile("/P/P.xcodeproj/project.pbxproj", names);
    for (int directory = 0; directory < kDirectories; ++directory) {
      for (int source = 0; source < kSourcesEach; ++source) addSource(directory, source);
    }
    disk.addDirectory("/P/d3/French.lproj");
  }

  static std::string pathOf(int directory, int source) {
    return "/P/d" + std::to_string(directory) + "/" + std::to_string(source) + ".m";
  }

  void parse(unsigned processors) {
    heard.clear();
    canceled.set(false);
    ReadAhead files(disk, stamps, processors);
    ScanMemory memory;
    ScanResult result;
    parseFileList(FileUrl("/P"), {files, isoTable, canceled, *this, options}, memory, result);
    for (const auto& record : result.stringList.records()) heard.push_back(record->name() + record->sourceList());
    for (const FileUrl& file : result.fileList) heard.push_back(file.path());
    for (const auto& language : *result.languagesList) heard.push_back(language->iso639());
    heard.push_back(memory.actualParseFileName.path() + std::to_string(memory.actualDirectoryDepth));
  }

  InMemoryFiles disk;
  InMemorySaveDisk stamps{disk};
  Lines heard;
  std::string cancelLine;

 private:
  void addSource(int directory, int source) {
    const std::string number = std::to_string(directory * kSourcesEach + source);
    disk.addFile(pathOf(directory, source), "NSLocalizedString(" + number + ") NSLocalizedString(@\"key " + number +
                                                "\", @\"\")" + std::string(static_cast<std::size_t>(source), ' '));
  }
  void happened(const ScanEvent& event) override {
    const auto lineOf = Overloaded{
        [](const SourceBegins& it) { return "source " + it.file.path(); },
        [](const SourceUnread& it) { return "unread " + it.file.path() + ": " + it.error.sentence; },
        [](const CallRejected& it) { return it.file.path() + " rejected " + std::string(it.excerpt); },
        [](const auto&) { return std::string("something else"); },
    };
    heard.push_back(std::visit(lineOf, event));
    if (heard.back() == cancelLine) canceled.set(true);
  }

  IsoTable isoTable = IsoTable::fromCsv("fra;fr;French\r").value();
  CancelFlag canceled;
  ProjectOptions options;
};

TEST_F(ReadAheadScan, TellsTheSameInTheSameOrder) {
  parse(1);
  const Lines alone = heard;
  EXPECT_GT(alone.size(), 4U * kDirectories * kSourcesEach);
  parse(2);
  EXPECT_EQ(heard, alone);
}

TEST_F(ReadAheadScan, TellsOfAnUnreadableSourceWhenItIsReached) {
  disk.failOpening(pathOf(4, 7), "Permission denied.");
  disk.failReadingAfter(pathOf(5, 0), 1, "The disk was pulled out.");
  parse(1);
  const Lines alone = heard;
  parse(2);
  EXPECT_EQ(heard, alone);
}

TEST_F(ReadAheadScan, StopsWhereItIsCanceled) {
  cancelLine = "source " + pathOf(5, 30);
  parse(1);
  const Lines alone = heard;
  parse(2);
  EXPECT_EQ(heard, alone);
}

TEST_F(ReadAheadScan, OpensNothingThatItWouldNotOpen) {
  disk.addFile("/P/d7/other.h", "");
  disk.addLink("/P/d7/linked.h", "other.h");
  parse(1);
  const auto before = disk.opened();
  parse(2);
  auto opened = disk.opened();
  opened.erase(opened.begin(), opened.begin() + static_cast<std::ptrdiff_t>(before.size()));
  const std::set<std::string> allowed(before.begin(), before.end());
  for (const std::string& path : opened) EXPECT_TRUE(allowed.contains(path)) << path;
}

}  // namespace
}  // namespace glossmill
