#include <gtest/gtest.h>

#include "app/AppDelegate.h"
#include "support/RecordingHost.h"

namespace glossmill {
namespace {

/// The program over a recording host, with a project of one language in /x/App.
class ApplicationOrder : public testing::Test {
 protected:
  ApplicationOrder() {
    recording.host.files.addFile("/x/App/App.xcodeproj/project.pbxproj", "");
    recording.host.files.addFile("/x/App/de.lproj/Localizable.strings", "");
  }
  void start() {
    recording.host.panels.willChoose("/x/App");
    application.applicationDidFinishLaunching();
    recording.runUntilIdle();
    calls.clear();
  }

  RecordingHost recording;
  CallRecorder& calls = recording.calls;
  AppDelegate application{recording.parts()};
};

// ---- The log ----

TEST_F(ApplicationOrder, BringsTheLogForwardWithEachMessageAndThenShowsTheWholeLog) {
  application.logText("first");
  application.logText("second");
  const Lines expected = {
      "interface files: load LogWindowController", "log window: show", "log view: \"first\\n\"", "log window: show",
      "log view: \"first\\nsecond\\n\"",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(ApplicationOrder, ShowsTheEmptyLogWithoutBringingItForward) {
  application.clearLog();
  application.logText("first");
  calls.clear();
  application.clearLog();
  EXPECT_TRUE(sameLines(calls.lines(), {"log view: \"\""}));
}

TEST_F(ApplicationOrder, ShowsAMessageOfAJobBeforeTheJobGoesOn) {
  recording.threads.performInBackground([this] {
    application.logText("first");
    calls.add("job", "went on");
  });
  recording.runUntilIdle();
  const Lines expected = {"log window: show", "log view: \"first\\n\"", "job: went on"};
  EXPECT_TRUE(sameLines(calls.linesOf({"log", "job"}), expected));
}

TEST_F(ApplicationOrder, EmptiesTheLogBeforeAnythingElseOfAProject) {
  start();
  application.close();
  EXPECT_EQ(calls.lines().at(1), "log view: \"\"");
}

// ---- Starting and quitting ----

TEST_F(ApplicationOrder, StartsWithTheMenuThenTheWindowThenThePanel) {
  recording.host.defaults.setStringArray("RecentUrls", {"/x/App"});
  recording.host.panels.willCancelOpenPanel();
  application.applicationDidFinishLaunching();
  const Lines expected = {
      "recent menu: remove all items",
      "recent menu: add \"/x/App\"",
      "recent menu: add a separator",
      "recent menu: add \"Clear Menu\"",
      "interface files: load ProjectWindowController",
      "notifications: add an observer of GlossmillTranslationChanged",
      "project window: show",
      "project window: no first responder",
      "project window: not edited",
      "panels: open panel \"Choose project directory...\"",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(ApplicationOrder, TerminatesAfterTheProjectWasClosed) {
  start();
  application.quit();
  EXPECT_EQ(calls.lines().front(), "project window: no first responder");
  EXPECT_EQ(calls.lines().back(), "application: terminate");
  EXPECT_EQ(calls.linesOf({"project window: not edited"}).size(), 1U);
}

TEST_F(ApplicationOrder, ClosesTheProjectOnTheWayOut) {
  start();
  application.applicationWillTerminate();
  const Lines expected = {"project window: no first responder", "log view: \"\"", "project window: not edited"};
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

// ---- The recent projects ----

TEST_F(ApplicationOrder, StoresARecentProjectBeforeItRebuildsTheMenu) {
  application.saveRecent("/x/App");
  application.saveRecent("/x/Other");
  const Lines expected = {
      "defaults: RecentUrls = [/x/App]",
      "defaults: synchronize",
      "recent menu: remove all items",
      "recent menu: add \"/x/App\"",
      "recent menu: add a separator",
      "recent menu: add \"Clear Menu\"",
      "defaults: RecentUrls = [/x/Other, /x/App]",
      "defaults: synchronize",
      "recent menu: remove all items",
      "recent menu: add \"/x/Other\"",
      "recent menu: add \"/x/App\"",
      "recent menu: add a separator",
      "recent menu: add \"Clear Menu\"",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(ApplicationOrder, StoresTheEmptyListBeforeItRebuildsTheMenu) {
  application.saveRecent("/x/App");
  calls.clear();
  application.clearRecent();
  const Lines expected = {
      "defaults: RecentUrls = []",
      "defaults: synchronize",
      "recent menu: remove all items",
      "recent menu: add \"Clear Menu\"",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(ApplicationOrder, RecordsAProjectWhenItsWindowIsInFrontAndThenClosesTheSheet) {
  recording.host.panels.willChoose("/x/App");
  application.applicationDidFinishLaunching();
  calls.when("project window: ordered index 0", [this] { calls.clear(); });
  recording.runUntilIdle();
  const Lines expected = {
      "defaults: RecentUrls = [/x/App]", "defaults: synchronize",        "recent menu: remove all items",
      "recent menu: add \"/x/App\"",     "recent menu: add a separator", "recent menu: add \"Clear Menu\"",
      "long-time sheet: order out",      "sheets: end long-time sheet",  "sheets: did end long-time sheet",
      "long-time sheet: order out",      "sheets: end long-time sheet",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

}  // namespace
}  // namespace glossmill
