#include <gtest/gtest.h>

#include "support/RecordedProject.h"

namespace glossmill {
namespace {

const Lines kCounting = {
    "sheets: begin long-time sheet", "indicator: determinate", "indicator: minimum 0",
    "indicator: maximum 2",          "indicator: value 0",
};

/// Two keys, of which German has the first.
class JobOrder : public testing::Test {
 protected:
  JobOrder() {
    harbour.addFile("A.xcodeproj/project.pbxproj", "Sea.m");
    harbour.addFile("Sea.m", R"(NSLocalizedString(@"Ebb", @"tide"); NSLocalizedString(@"Flood", @"tide");)");
    harbour.addFile("de.lproj/Localizable.strings", "\"Ebb\" = \"Ebbe\";");
    harbour.openUnrecorded();
  }

  void beginExport() {
    project().exportLanguageToFileAllStrings(harbour.language(0), FileUrl("/P/out.txt"), ExportScope::AllStrings);
  }
  void beginImport() {
    harbour.disk().addFile("/P/in.txt", "--- 1 ---\n\nFlood\nFlut\n");
    project().importLanguageFromFile(harbour.language(0), FileUrl("/P/in.txt"));
  }
  void beginFill() { project().languageFromBaseLanguage(harbour.language(0)); }
  void cancelWhen(std::string_view line) {
    calls.when(line, [this] { project().longTimeCanceled(); });
  }
  std::string german(std::size_t row) {
    const auto found = project().stringList().at(row)->languagesDict().find(harbour.language(0)->code());
    return found ? std::string(*found) : "none";
  }
  ProjectWindowController& project() { return *harbour.project; }

  RecordedProject harbour;
  CallRecorder& calls = harbour.calls;
};

// ---- Export ----

TEST_F(JobOrder, ExportsCountingTheRecordsAndWritesAtTheEnd) {
  beginExport();
  harbour.runUntilIdle();
  const Lines expected = joined({
      {"sheet title: \"Exporting strings...\""},
      kCounting,
      {
          "background: start a job",
          "indicator: value 1",
          "indicator: value 2",
          "files: write /P/out.txt",
      },
      RecordedProject::sheetEnds(),
  });
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(JobOrder, ClosesTheSheetAfterTheAlertOfAnExportThatCannotBeWritten) {
  harbour.disk().failWriting("/P/out.txt", "No.");
  beginExport();
  calls.when("files: write /P/out.txt", [this] { calls.clear(); });
  harbour.runUntilIdle();
  const Lines expected = joined({
      {
          "panels: alert \"Error saving export file for language German\"",
          "panels: alert answered with the default button",
          "system log: Error No. writing file: file:///P/out.txt",
      },
      RecordedProject::sheetEnds(),
  });
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(JobOrder, ClosesTheSheetOfACancelledExportWithoutAWord) {
  cancelWhen("indicator: value 1");
  beginExport();
  harbour.runUntilIdle();
  const Lines expected = joined({
      {"sheet title: \"Exporting strings...\""},
      kCounting,
      {"background: start a job", "indicator: value 1"},
      RecordedProject::sheetEnds(),
  });
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

// ---- Import ----

TEST_F(JobOrder, ImportsInOneBatchOfUpdates) {
  beginImport();
  harbour.runUntilIdle();
  const Lines expected = joined({
      {"sheet title: \"Importing strings...\""},
      kCounting,
      {
          "string table: begin updates",
          "background: start a job",
          "files: open /P/in.txt",
          "files: read /P/in.txt",
          "indicator: value 1",
          "indicator: value 2",
          "language table: reload",
          "string table: reload",
          "string table: end updates",
          "editor: show the translation again",
      },
      RecordedProject::sheetEnds(),
  });
  EXPECT_TRUE(sameLines(calls.lines(), expected));
  EXPECT_EQ(german(1), "Flut");
}

TEST_F(JobOrder, EndsAnImportOfAFileThatCannotBeReadLikeAnyOther) {
  harbour.disk().failOpening("/P/in.txt", "No.");
  beginImport();
  calls.clear();
  harbour.runUntilIdle();
  const Lines expected = joined({
      {
          "files: open /P/in.txt",
          "language table: reload",
          "string table: reload",
          "string table: end updates",
          "editor: show the translation again",
      },
      RecordedProject::sheetEnds(),
  });
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(JobOrder, LeavesTheBatchOfACancelledImportOpen) {
  cancelWhen("indicator: value 1");
  beginImport();
  harbour.runUntilIdle();
  const Lines expected = {"string table: begin updates"};
  EXPECT_TRUE(sameLines(calls.linesOf({"string table", "language table", "files: write", "panels"}), expected));
  EXPECT_EQ(calls.lines().back(), RecordedProject::sheetEnds().back());
  EXPECT_FALSE(harbour.sheetIsUp());
  EXPECT_EQ(german(1), "none");
}

TEST_F(JobOrder, RaisesTheBarBeforeItImportsIntoARecord) {
  std::string then;
  calls.when("indicator: value 2", [&] { then = german(1); });
  beginImport();
  harbour.runUntilIdle();
  EXPECT_EQ(then, "none");
  EXPECT_EQ(german(1), "Flut");
}

// ---- Base language ----

TEST_F(JobOrder, FillsInOneBatchOfUpdates) {
  beginFill();
  harbour.runUntilIdle();
  const Lines expected = joined({
      {"sheet title: \"Creating base language...\""},
      kCounting,
      {
          "string table: begin updates",
          "background: start a job",
          "indicator: value 1",
          "indicator: value 2",
          "project window: edited",
          "string table: reload",
          "language table: reload",
          "string table: end updates",
          "editor: show the translation again",
      },
      RecordedProject::sheetEnds(),
  });
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(JobOrder, EndsACancelledFillLikeAnyOther) {
  cancelWhen("indicator: value 1");
  beginFill();
  harbour.runUntilIdle();
  const Lines expected = {
      "string table: begin updates",
      "string table: reload",
      "language table: reload",
      "string table: end updates",
  };
  EXPECT_TRUE(sameLines(calls.linesOf({"string table", "language table", "project window"}), expected));
  EXPECT_EQ(calls.lines().back(), RecordedProject::sheetEnds().back());
  EXPECT_EQ(german(1), "none");
}

TEST_F(JobOrder, RaisesTheBarBeforeItFillsARecord) {
  std::string then;
  calls.when("indicator: value 2", [&] { then = german(1); });
  beginFill();
  harbour.runUntilIdle();
  EXPECT_EQ(then, "none");
  EXPECT_EQ(german(1), "Flood");
}

// ---- All of them ----

TEST_F(JobOrder, ForgetsACancelAfterTheSheetHasBegun) {
  const std::vector<std::function<void()>> jobs = {[this] { beginExport(); }, [this] { beginFill(); },
                                                   [this] { beginImport(); }};
  for (const std::function<void()>& begin : jobs) {
    calls.clear();
    cancelWhen("sheets: begin long-time sheet");
    begin();
    harbour.runUntilIdle();
    EXPECT_EQ(calls.linesOf({"indicator: value 2"}).size(), 1U);
  }
}

TEST_F(JobOrder, HeedsACancelFromTheMomentTheJobStarts) {
  const std::vector<std::function<void()>> jobs = {[this] { beginExport(); }, [this] { beginFill(); },
                                                   [this] { beginImport(); }};
  for (const std::function<void()>& begin : jobs) {
    calls.clear();
    cancelWhen("background: start a job");
    begin();
    harbour.runUntilIdle();
    EXPECT_EQ(calls.linesOf({"indicator: value 1"}), Lines());
    EXPECT_FALSE(harbour.sheetIsUp());
  }
}

}  // namespace
}  // namespace glossmill
