#include <gtest/gtest.h>

#include "support/RecordedProject.h"

namespace glossmill {
namespace {

/// German has a strings file, French only its directory.
class SavingOrder : public testing::Test {
 protected:
  SavingOrder() {
    harbour.addFile("A.xcodeproj/project.pbxproj", "Sea.m");
    harbour.addFile("Sea.m", R"(NSLocalizedString(@"Ebb", @"tide"))");
    harbour.addFile("de.lproj/Localizable.strings", "\"Ebb\" = \"Ebbe\";");
    harbour.addDirectory("fr.lproj");
    harbour.openUnrecorded();
  }
  /// All but the questions to the disk.
  Lines linesOfSaving() {
    Lines lines = calls.lines();
    std::erase_if(lines, [](const std::string& line) {
      return line.starts_with("files: look for") || line.starts_with("files: open") ||
             line.starts_with("files: read") || line.starts_with("files: list");
    });
    return lines;
  }
  ProjectWindowController& project() { return *harbour.project; }

  RecordedProject harbour;
  CallRecorder& calls = harbour.calls;
  const std::string german = RecordedProject::stringsFile("de");
  const std::string french = RecordedProject::stringsFile("fr");
};

TEST_F(SavingOrder, SavesLanguageAfterLanguageAndThenCountsAsSaved) {
  project().setChanged(true);
  calls.clear();
  EXPECT_TRUE(project().saveProject());
  const Lines expected = {
      "files: prepare " + german,
      "files: prepare " + french,
      "files: replace " + german,
      "files: replace " + french,
      "panels: alert \"Created new Localizable.strings for language French at:\\n\\nfile://" + french +
          "\\n\\nYou must add this file to your Xcode project bundle!\"",
      "panels: alert answered with the default button",
      "project window: not edited",
  };
  EXPECT_TRUE(sameLines(linesOfSaving(), expected));
}

TEST_F(SavingOrder, ShowsTheAlertAndThenWritesTheDiagnosticOfAFileThatCannotBeWritten) {
  harbour.disk().failWriting(german, "No.");
  EXPECT_FALSE(project().saveLanguage(harbour.language(0)));
  const Lines expected = {
      "files: prepare " + german,
      "panels: alert \"Error saving Localizable.strings for language German\"",
      "panels: alert answered with the default button",
      "system log: Error No. writing file: file://" + german,
  };
  EXPECT_TRUE(sameLines(linesOfSaving(), expected));
}

TEST_F(SavingOrder, ShowsTheAlertAndThenWritesTheDiagnosticOfADirectoryThatCannotBeMade) {
  harbour.disk().remove("/P/Harbour.app/fr.lproj");
  harbour.disk().failCreating("/P/Harbour.app/fr.lproj", "No.");
  EXPECT_FALSE(project().saveLanguage(harbour.language(1)));
  const Lines expected = {
      "files: create /P/Harbour.app/fr.lproj",
      "panels: alert \"Error creating file://" + french + " for language French\"",
      "panels: alert answered with the default button",
      "system log: Error No. creating directory file://" + french,
  };
  EXPECT_TRUE(sameLines(linesOfSaving(), expected));
  EXPECT_EQ(harbour.language(1)->urlDepth(), Language::kStringsFile);
}

TEST_F(SavingOrder, StillCountsAsChangedWhileItsAlertsAreUp) {
  harbour.disk().failWriting(german, "No.");
  project().setChanged(true);
  bool changed = false;
  calls.when("panels: alert \"Error saving Localizable.strings for language German\"",
             [&] { changed = project().changed(); });
  EXPECT_FALSE(project().saveProject());
  EXPECT_TRUE(changed);
  EXPECT_FALSE(project().changed());
}

TEST_F(SavingOrder, WritesTheOtherLanguagesOfAProjectThatIsClosedBehindAnAlert) {
  harbour.disk().failWriting(german, "No.");
  calls.when("panels: alert \"Error saving Localizable.strings for language German\"",
             [this] { project().clearProject(); });
  EXPECT_FALSE(project().saveProject());
  EXPECT_TRUE(sameLines(calls.linesOf({"files: replace"}), {"files: replace " + french}));
  EXPECT_EQ(calls.linesOf({"panels: alert \"Created"}).size(), 1U);
  EXPECT_FALSE(project().opened());
}

TEST_F(SavingOrder, LooksForTheFileOnceMoreRightBeforeItWrites) {
  bool made = false;
  harbour.disk().remove("/P/Harbour.app/fr.lproj");
  calls.when("files: create /P/Harbour.app/fr.lproj", [&] {
    harbour.disk().addFile(french, "from elsewhere");
    made = true;
  });
  harbour.panels().willAnswer(AlertAnswer::Default);
  EXPECT_FALSE(project().saveLanguage(harbour.language(1)));
  EXPECT_TRUE(made);
  EXPECT_EQ(harbour.disk().bytesOf(french), "from elsewhere");
  EXPECT_EQ(calls.linesOf({"files: replace"}), Lines());
}

TEST_F(SavingOrder, CommitsAnEditBeforeItAsksWhetherToSave) {
  harbour.window().window.commitEdit = [this] { project().setChanged(true); };
  harbour.panels().willAnswer(AlertAnswer::Default);
  EXPECT_TRUE(project().closeProject());
  calls.add("test", "closed");
  const Lines expected = {
      "project window: no first responder",
      "project window: edited",
      "panels: alert \"Translations not saved. Quit anyway?\"",
      "panels: alert answered with the default button",
      "files: prepare " + german,
      "files: prepare " + french,
      "files: replace " + german,
      "files: replace " + french,
      "panels: alert \"Created new Localizable.strings for language French at:\\n\\nfile://" + french +
          "\\n\\nYou must add this file to your Xcode project bundle!\"",
      "panels: alert answered with the default button",
      "project window: not edited",
      "application: clear the log",
      "string rows: 0",
      "state: 0 files",
      "language rows: 0",
      "project window: not edited",
      "state: not opened",
      "test: closed",
  };
  EXPECT_TRUE(sameLines(linesOfSaving(), expected));
}

TEST_F(SavingOrder, EmptiesNothingWhenTheQuestionIsCancelled) {
  project().setChanged(true);
  calls.clear();
  harbour.panels().willAnswer(AlertAnswer::Other);
  EXPECT_FALSE(project().closeProject());
  const Lines expected = {
      "project window: no first responder",
      "panels: alert \"Translations not saved. Quit anyway?\"",
      "panels: alert answered with the other button",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

}  // namespace
}  // namespace glossmill
