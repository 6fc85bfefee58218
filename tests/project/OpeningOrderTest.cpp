#include <gtest/gtest.h>

#include "support/RecordedProject.h"

namespace glossmill {
namespace {

/// Two keys in two languages; German has one of them, English has both.
class OpeningOrder : public testing::Test {
 protected:
  OpeningOrder() {
    harbour.addFile("A.xcodeproj/project.pbxproj", "Sea.m");
    harbour.addFile("Sea.m", R"(NSLocalizedString(@"Ebb", @"tide"); NSLocalizedString(@"Flood", @"tide");)");
    harbour.addFile("de.lproj/Localizable.strings", "\"Ebb\" = \"Ebbe\";");
    harbour.addFile("en.lproj/Localizable.strings", "\"Ebb\" = \"Ebb\";\n\"Flood\" = \"Flood\";");
  }
  void openWithFilter(long index) {
    harbour.recording.host.defaults.setInteger("StringFilterPopUp", index);
    harbour.openUnrecorded();
  }
  void cancel() { harbour.project->longTimeCanceled(); }

  RecordedProject harbour;
  CallRecorder& calls = harbour.calls;
};

TEST_F(OpeningOrder, BeginsTheScanBeforeItNamesTheWindow) {
  harbour.begin();
  const Lines expected = {
      "project window: no first responder",
      "application: clear the log",
      "string rows: 0",
      "language rows: 0",
      "project window: not edited",
      "panels: open panel \"Choose project directory...\"",
      "interface files: load LongTimeSheet",
      "sheet title: \"Parsing project directory...\"",
      "sheets: begin long-time sheet",
      "indicator: indeterminate",
      "indicator: start the animation",
      "background: start a job",
      "project window: title \"Harbour\"",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
  harbour.runUntilIdle();
}

TEST_F(OpeningOrder, LoadsTheSheetOnce) {
  harbour.openUnrecorded();
  harbour.begin();
  EXPECT_EQ(calls.linesOf({"interface files:"}), Lines());
  harbour.runUntilIdle();
}

TEST_F(OpeningOrder, ForgetsACancelAfterTheSheetHasBegun) {
  calls.when("sheets: begin long-time sheet", [this] { cancel(); });
  harbour.open();
  EXPECT_TRUE(harbour.project->opened());
}

TEST_F(OpeningOrder, HeedsACancelFromTheMomentTheJobStarts) {
  calls.when("background: start a job", [this] { cancel(); });
  harbour.open();
  EXPECT_FALSE(harbour.project->opened());
  EXPECT_FALSE(harbour.sheetIsUp());
}

TEST_F(OpeningOrder, HandsOverToPhaseTwoWithANewTitle) {
  harbour.begin();
  calls.clear();
  Lines handOver;
  calls.when("background: start a job", [&] {
    handOver = calls.linesOf({"sheet", "indicator", "background", "project"});
  });
  harbour.runUntilIdle();
  const Lines expected = {"sheet title: \"Parsing Localizable.strings ...\"", "background: start a job"};
  EXPECT_TRUE(sameLines(handOver, expected));
}

TEST_F(OpeningOrder, InstallsTheResultInOneBatchOfUpdates) {
  harbour.recording.host.defaults.setInteger("StringFilterPopUp", 1);
  calls.when("sheet title: \"Parsing Localizable.strings ...\"", [this] { calls.clear(); });
  harbour.open();
  const Lines expected = joined({{
                                     "background: start a job",
                                     "string table: begin updates",
                                     "state: 1 files",
                                     "string rows: 2",
                                     "string rows: 2, selected 0",
                                     "language rows: 2",
                                     "language rows: 2, selected 0",
                                     "filter: select item 1",
                                     "string table: begin updates",
                                     "defaults: StringFilterPopUp = 1",
                                     "defaults: synchronize",
                                     "state: 1 held back",
                                     "string rows: 1",
                                     "string table: end updates",
                                     "string table: end updates",
                                     "project window: not edited",
                                     "state: opened",
                                     "project window: make key and order front",
                                     "project window: ordered index 0",
                                     "application: save recent /P/Harbour.app",
                                 },
                                 RecordedProject::sheetEnds()});
  EXPECT_TRUE(sameLines(calls.linesOf({"string", "language", "filter", "defaults", "project window", "state",
                                       "application", "sheet", "long-time", "background"}),
                        expected));
}

TEST_F(OpeningOrder, SelectsNothingInAnEmptyProject) {
  harbour.disk().remove("/P/Harbour.app/Sea.m");
  harbour.disk().remove("/P/Harbour.app/de.lproj");
  harbour.disk().remove("/P/Harbour.app/en.lproj");
  calls.when("sheet title: \"Parsing Localizable.strings ...\"", [this] { calls.clear(); });
  harbour.open();
  const Lines expected = {"string rows: 0", "language rows: 0", "string rows: 0"};
  EXPECT_TRUE(sameLines(calls.linesOf({"string rows", "language rows"}), expected));
}

TEST_F(OpeningOrder, EmptiesTheProjectFromTheLogToTheFlags) {
  openWithFilter(1);
  EXPECT_TRUE(harbour.project->closeProject());
  calls.add("test", "closed");
  const Lines expected = {
      "project window: no first responder",
      "application: clear the log",
      "state: 0 held back",
      "string rows: 0",
      "state: 0 files",
      "language rows: 0",
      "project window: not edited",
      "state: not opened",
      "test: closed",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(OpeningOrder, ClosesTheOpenProjectBeforeItAsks) {
  harbour.openUnrecorded();
  harbour.panels().willCancelOpenPanel();
  EXPECT_FALSE(harbour.project->openProject(FileUrl()));
  const Lines lines = calls.lines();
  EXPECT_EQ(lines.front(), "project window: no first responder");
  EXPECT_EQ(lines.back(), "panels: open panel \"Choose project directory...\"");
  EXPECT_FALSE(harbour.project->opened());
}

TEST_F(OpeningOrder, EmptiesTheProjectAndThenClosesTheSheetAfterACancelInPhaseOne) {
  calls.when("log: Found Localizable.strings for Language: German", [this] {
    cancel();
    calls.clear();
  });
  harbour.open();
  const Lines expected = joined({{
                                     "application: clear the log",
                                     "string rows: 0",
                                     "language rows: 0",
                                     "project window: not edited",
                                 },
                                 RecordedProject::sheetEnds()});
  EXPECT_TRUE(sameLines(calls.linesOf({"application", "string", "language", "project window", "state", "sheet",
                                       "long-time", "background"}),
                        expected));
}

TEST_F(OpeningOrder, EmptiesTheProjectAndThenClosesTheSheetAfterACancelBeforeTheInstall) {
  harbour.addDirectory("fr.lproj");
  calls.when("system log: Missing Localizable.strings for language: French", [this] {
    cancel();
    calls.clear();
  });
  harbour.open();
  const Lines expected = joined({{
                                     "application: clear the log",
                                     "string rows: 0",
                                     "language rows: 0",
                                     "project window: not edited",
                                 },
                                 RecordedProject::sheetEnds()});
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(OpeningOrder, KeepsTheWalkCounterWhenThereIsNoPackage) {
  harbour.openUnrecorded();
  const std::int64_t counter = harbour.project->actualDirectoryDepth();
  EXPECT_EQ(counter, 4);
  harbour.disk().remove("/P/Harbour.app/A.xcodeproj");
  harbour.open();
  EXPECT_TRUE(harbour.project->opened());
  EXPECT_EQ(harbour.project->actualDirectoryDepth(), counter);
}

TEST_F(OpeningOrder, StartsTheWalkCounterAnewForAPackageWithoutAProjectFile) {
  harbour.openUnrecorded();
  harbour.disk().remove("/P/Harbour.app/A.xcodeproj/project.pbxproj");
  harbour.open();
  EXPECT_EQ(harbour.project->actualDirectoryDepth(), 4);
}

TEST(ProjectWindowOrder, ObservesTranslationsFromTheLoadingOfTheWindowToItsEnd) {
  RecordingHost recording;
  RecordingServices services(recording.calls);
  auto project = std::make_unique<ProjectWindowController>(recording.parts(), services);
  EXPECT_EQ(recording.calls.lines(), Lines());
  project->showWindow();
  project->showWindow();
  project.reset();
  const Lines expected = {
      "interface files: load ProjectWindowController",
      "notifications: add an observer of GlossmillTranslationChanged",
      "project window: show",
      "project window: show",
      "notifications: remove an observer",
  };
  EXPECT_TRUE(sameLines(recording.calls.lines(), expected));
}

}  // namespace
}  // namespace glossmill
