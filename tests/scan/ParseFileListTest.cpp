#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

#include "model/Overloaded.h"
#include "scan/ParseFileList.h"
#include "support/InMemoryFiles.h"

namespace glossmill {
namespace {

using Lines = std::vector<std::string>;

/// Phase one in /P, and what it tells.
class ParseFileList : public testing::Test, private ScanListener {
 protected:
  ParseFileList() { files.addFile("/P/P.xcodeproj/project.pbxproj", "a.m b.m"); }

  void addFile(std::string_view name, std::string_view bytes = {}) { files.addFile("/P/" + std::string(name), bytes); }
  void parse() { parseFileList(FileUrl("/P"), {files, isoTable, canceled, *this, options}, memory, result); }
  void cancelWhen(std::string_view line) { m_cancelLine = line; }

  Lines keys() const {
    Lines keys;
    for (const auto& record : result.stringList.records()) keys.push_back(record->name());
    return keys;
  }
  Lines paths() const {
    Lines paths;
    for (const FileUrl& file : result.fileList) paths.push_back(file.path());
    return paths;
  }

  InMemoryFiles files;
  IsoTable isoTable = IsoTable::fromCsv("eng;en;English\r").value();
  CancelFlag canceled;
  ProjectOptions options;
  ScanMemory memory;
  ScanResult result;
  Lines heard;

 private:
  void happened(const ScanEvent& event) override {
    const auto lineOf = Overloaded{
        [](const PackageFound& it) { return "package " + it.package.path(); },
        [](const NoPackageFound&) { return std::string("no package"); },
        [](const ProjectFileUnread& it) { return "no project file " + it.file.path() + ": " + it.error.sentence; },
        [](const OldLanguageName& it) { return std::string(it.directoryName) + " is " + std::string(it.code); },
        [](const StringsFileFound& it) {
          return "strings of " + it.language.iso639() + " " + std::to_string(it.language.urlDepth()) + " " +
                 it.file.path();
        },
        [](const SourceBegins& it) { return "source " + it.file.path(); },
        [](const SourceUnread& it) { return "unread " + it.file.path() + ": " + it.error.sentence; },
        [](const CallRejected& it) {
          return std::string(it.file.lastPathComponent()) + " rejected " + std::string(it.excerpt);
        },
        [](const auto&) { return std::string("something else"); },
    };
    heard.push_back(std::visit(lineOf, event));
    if (heard.back() == m_cancelLine) canceled.set(true);
  }

  std::string m_cancelLine;
};

TEST_F(ParseFileList, TellsWhatHappensInItsOrder) {
  addFile("English.lproj/Localizable.strings");
  addFile("a.m", R"(NSLocalizedString(1) NSLocalizedString(@"k", @""))");
  addFile("b.m");
  files.failOpening("/P/b.m", "Permission denied.");
  parse();
  EXPECT_EQ(heard,
            (Lines{"package /P/P.xcodeproj", "English is en", "strings of en 1 /P/English.lproj/Localizable.strings",
                   "source /P/a.m", "a.m rejected NSLocalizedString(1) NSLocalizedString(@\"k\", @\"\")",
                   "source /P/b.m", "unread /P/b.m: Permission denied."}));
  EXPECT_EQ(paths(), (Lines{"/P/a.m", "/P/b.m"}));
  EXPECT_EQ(keys(), Lines{"k"});
}

TEST_F(ParseFileList, TellsThatThereIsNoPackageAndWalksNowhere) {
  files.remove("/P/P.xcodeproj");
  addFile("a.m");
  parse();
  EXPECT_EQ(heard, Lines{"no package"});
  EXPECT_EQ(paths(), Lines());
}

TEST_F(ParseFileList, TellsThatTheProjectFileCannotBeReadAndTakesTheFormerOne) {
  files.remove("/P/P.xcodeproj/project.pbxproj");
  addFile("b.m");
  addFile("c.m");
  memory.projectFileData = "c.m";
  parse();
  EXPECT_EQ(heard,
            (Lines{"package /P/P.xcodeproj", "no project file /P/P.xcodeproj/project.pbxproj: The file does not exist.",
                   "source /P/c.m"}));
}

TEST_F(ParseFileList, SaysNothingOfASourceThatIsGone) {
  addFile("a.m");
  addFile("b.m");
  files.onOpen = [this](const std::string& path) {
    if (path == "/P/a.m") files.remove("/P/b.m");
  };
  parse();
  EXPECT_EQ(heard, (Lines{"package /P/P.xcodeproj", "source /P/a.m"}));
  EXPECT_EQ(paths(), Lines{"/P/a.m"});
}

TEST_F(ParseFileList, DropsTheRecordsOfAFileWhenItIsCanceledAtItsLastCall) {
  addFile("a.m", R"(NSLocalizedString(@"first", @""))");
  addFile("b.m", R"(NSLocalizedString(@"second", @"") NSLocalizedString(2))");
  cancelWhen("b.m rejected NSLocalizedString(2)");
  parse();
  EXPECT_EQ(heard.back(), "b.m rejected NSLocalizedString(2)");
  EXPECT_EQ(keys(), Lines{"first"});
  EXPECT_EQ(paths(), (Lines{"/P/a.m", "/P/b.m"}));
}

TEST_F(ParseFileList, RejectsNoCallOfAFileBeforeWhichItIsCanceled) {
  addFile("a.m", "NSLocalizedString(1)");
  addFile("b.m", "NSLocalizedString(2)");
  cancelWhen("source /P/a.m");
  parse();
  EXPECT_EQ(heard, (Lines{"package /P/P.xcodeproj", "source /P/a.m"}));
}

}  // namespace
}  // namespace glossmill
