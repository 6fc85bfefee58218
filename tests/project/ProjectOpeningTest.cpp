#include "project/ScanTest.h"

namespace glossmill {
namespace {

/// Opening a project, as its window shows it.
class ProjectOpening : public ScanTest {
 protected:
  /// One source with two strings, of which German has one; French has no file.
  void addProject() {
    addPackage("main.m");
    addFile("Harbour.app/main.m", R"(NSLocalizedString(@"Open", @"Menu"); NSLocalizedString(@"Close", @"");)");
    addFile("Harbour.app/de.lproj/Localizable.strings", "\"Open\" = \"Auf\";\n");
    addDirectory("Harbour.app/fr.lproj");
  }

  const OpenPanelRequest& panel() { return host.panels.openPanels.back(); }
};

TEST_F(ProjectOpening, AsksForADirectory) {
  host.panels.willCancelOpenPanel();
  project().openProject(FileUrl("/P/Harbour.app"));
  EXPECT_EQ(panel().title, "Choose project directory...");
  EXPECT_EQ(panel().prompt, "Choose");
  EXPECT_TRUE(panel().canCreateDirectories);
  EXPECT_TRUE(panel().canChooseDirectories);
  EXPECT_FALSE(panel().canChooseFiles);
  EXPECT_FALSE(panel().allowsMultipleSelection);
  EXPECT_EQ(panel().directory, FileUrl("/P/Harbour.app"));
}

TEST_F(ProjectOpening, LetsThePanelOpenAnywhereWithoutAStart) {
  host.panels.willCancelOpenPanel();
  project().openProjectButton();
  EXPECT_TRUE(panel().directory.empty());
}

TEST_F(ProjectOpening, StartsNoScanWhenThePanelIsCancelled) {
  host.panels.willCancelOpenPanel();
  EXPECT_FALSE(project().openProject(FileUrl()));
  EXPECT_EQ(host.interfaces.longTimeSheet(), nullptr);
  EXPECT_TRUE(project().projectDirectory().empty());
}

TEST_F(ProjectOpening, HasClosedTheFormerProjectWhenThePanelIsCancelled) {
  addProject();
  open();
  host.panels.willCancelOpenPanel();
  EXPECT_FALSE(project().openProject(FileUrl()));
  expectNothingOpen();
  EXPECT_EQ(log(), Lines());
}

TEST_F(ProjectOpening, ShowsNoPanelWhenTheChangedProjectIsToStayOpen) {
  addProject();
  open();
  project().setChanged(true);
  host.panels.willAnswer(AlertAnswer::Other);
  EXPECT_FALSE(project().openProject(FileUrl()));
  EXPECT_EQ(host.panels.openPanels.size(), 1U);
  EXPECT_EQ(keys(), (Lines{"Open", "Close"}));
  EXPECT_TRUE(project().changed());
}

TEST_F(ProjectOpening, OpensADirectoryThatIsKnownWithoutThePanel) {
  addProject();
  EXPECT_TRUE(project().openProjectAt(FileUrl("/P/Harbour.app")));
  EXPECT_EQ(window().window.title, "Harbour");
  EXPECT_TRUE(sheetIsUp());
  host.runUntilIdle();
  EXPECT_TRUE(host.panels.openPanels.empty());
  EXPECT_TRUE(project().opened());
  EXPECT_EQ(keys(), (Lines{"Open", "Close"}));
  EXPECT_EQ(application.recentArray(), Lines{"/P/Harbour.app"});
}

TEST_F(ProjectOpening, AsksBeforeAChangedProjectGivesWayToAKnownDirectory) {
  addProject();
  open();
  project().setChanged(true);
  host.panels.willAnswer(AlertAnswer::Other);
  EXPECT_FALSE(project().openProjectAt(FileUrl("/P/Other")));
  EXPECT_EQ(project().projectDirectory(), FileUrl("/P/Harbour.app"));
  EXPECT_EQ(keys(), (Lines{"Open", "Close"}));
  host.panels.willAnswer(AlertAnswer::Alternate);
  EXPECT_TRUE(project().openProjectAt(FileUrl("/P/Other")));
  expectNothingOpen();
  host.runUntilIdle();
}

TEST_F(ProjectOpening, ShowsTheTitleAndAnAnimatedSheetAsSoonAsTheScanStarts) {
  addProject();
  EXPECT_TRUE(begin());
  EXPECT_EQ(project().projectDirectory(), FileUrl("/P/Harbour.app"));
  EXPECT_EQ(window().window.title, "Harbour");
  EXPECT_EQ(sheet().title.stringValue, "Parsing project directory...");
  EXPECT_TRUE(sheet().indicator.isIndeterminate);
  EXPECT_TRUE(sheet().indicator.isAnimated);
  EXPECT_TRUE(sheetIsUp());
  EXPECT_TRUE(project().longJobRunning());
  EXPECT_FALSE(project().opened());
  host.runUntilIdle();
  EXPECT_TRUE(project().opened());
}

TEST_F(ProjectOpening, ShowsTheDirectorysNameWithoutItsExtension) {
  for (const auto& [directory, title] :
       {std::pair("MyApp.folder", "MyApp"), std::pair("Plain", "Plain"), std::pair("a.b.c", "a.b")}) {
    addDirectory(directory);
    open(directory);
    EXPECT_EQ(window().window.title, title);
  }
}

TEST_F(ProjectOpening, RetitlesTheSheetForTheStringsFilesAndClosesItAtTheEnd) {
  addProject();
  open();
  EXPECT_EQ(titles, (Lines{"Parsing project directory...", "Parsing Localizable.strings ..."}));
  EXPECT_FALSE(sheetIsUp());
  EXPECT_FALSE(sheet().window.isVisible);
  EXPECT_FALSE(project().longJobRunning());
}

TEST_F(ProjectOpening, KeepsTheIndicatorIndeterminateInBothPhases) {
  addProject();
  whenLogged("Missing Localizable.strings for language: French", [this] {
    EXPECT_EQ(sheet().title.stringValue, "Parsing Localizable.strings ...");
    EXPECT_TRUE(sheet().indicator.isIndeterminate);
    EXPECT_TRUE(sheet().indicator.isAnimated);
    EXPECT_TRUE(sheetIsUp());
  });
  open();
  EXPECT_EQ(sheet().indicator.doubleValue, 0.0);
}

TEST_F(ProjectOpening, InstallsTheResult) {
  addProject();
  open();
  EXPECT_TRUE(project().opened());
  EXPECT_FALSE(project().changed());
  EXPECT_FALSE(window().window.isDocumentEdited);
  EXPECT_EQ(files(), Lines{"/P/Harbour.app/main.m"});
  EXPECT_EQ(keys(), (Lines{"Open", "Close"}));
  EXPECT_EQ(codes(), (Lines{"de", "fr"}));
  EXPECT_EQ(translation(0, "de"), "Auf");
  EXPECT_EQ(translation(1, "de"), "none");
  EXPECT_EQ(translation(0, "fr"), "none");
}

TEST_F(ProjectOpening, SelectsTheFirstStringAndTheFirstLanguage) {
  addProject();
  open();
  EXPECT_EQ(project().stringController().selectedRow(), 0U);
  EXPECT_EQ(project().selectedString()->name(), "Open");
  EXPECT_EQ(project().languageController().selectedRow(), 0U);
  EXPECT_EQ(project().selectedLanguage()->iso639(), "de");
}

TEST_F(ProjectOpening, SelectsNothingInAnEmptyProject) {
  addDirectory("Harbour.app");
  open();
  EXPECT_EQ(project().stringController().selectedRow(), std::nullopt);
  EXPECT_EQ(project().languageController().selectedRow(), std::nullopt);
}

TEST_F(ProjectOpening, EndsTheTablesUpdatesAndBringsTheWindowToTheFront) {
  addProject();
  window().window.isKey = false;
  open();
  EXPECT_EQ(window().stringTableView.updatesDepth, 0);
  EXPECT_TRUE(window().window.isKey);
  EXPECT_EQ(window().window.orderedIndex, 0);
}

TEST_F(ProjectOpening, PutsTheDirectoryToTheTopOfTheRecentProjects) {
  addProject();
  addDirectory("Other");
  open("Other");
  open();
  EXPECT_EQ(application.recentArray(), (Lines{"/P/Harbour.app", "/P/Other"}));
}

TEST_F(ProjectOpening, ComesBackToTheStoredFilter) {
  addProject();
  addFile("Harbour.app/fr.lproj/Localizable.strings", "\"Open\" = \"Ouvrir\";\n");
  host.defaults.setInteger("StringFilterPopUp", 1);
  open();
  EXPECT_EQ(window().stringFilterPopUp.selectedIndex, 1);
  EXPECT_EQ(keys(), Lines{"Close"});
  ASSERT_EQ(project().filteredStringList().size(), 1U);
  EXPECT_EQ(project().filteredStringList()[0]->name(), "Open");
}

TEST_F(ProjectOpening, ShowsTheFirstFilterWhenNoneIsStored) {
  addProject();
  window().stringFilterPopUp.selectedIndex = 1;
  open();
  EXPECT_EQ(window().stringFilterPopUp.selectedIndex, 0);
  EXPECT_EQ(keys(), (Lines{"Open", "Close"}));
}

TEST_F(ProjectOpening, LetsGoOfTheStringsThatTheFilterHoldsBack) {
  addProject();
  addFile("Harbour.app/fr.lproj/Localizable.strings", "\"Open\" = \"Ouvrir\";\n");
  host.defaults.setInteger("StringFilterPopUp", 1);
  open();
  EXPECT_EQ(project().filteredStringList().size(), 1U);
  EXPECT_TRUE(project().closeProject());
  expectNothingOpen();
}

TEST_F(ProjectOpening, CountsAsUnchangedWhateverHappenedDuringTheScan) {
  addProject();
  whenLogged("Found Localizable.strings for Language: German", [this] { project().stringChangedNotification(); });
  open();
  EXPECT_FALSE(project().changed());
  EXPECT_FALSE(window().window.isDocumentEdited);
}

TEST_F(ProjectOpening, ReplacesTheFormerProject) {
  addProject();
  open();
  addFile("Other/B.xcodeproj/project.pbxproj", "other.m");
  addFile("Other/other.m", R"(NSLocalizedString(@"Other", @"");)");
  open("Other");
  EXPECT_EQ(files(), Lines{"/P/Other/other.m"});
  EXPECT_EQ(keys(), Lines{"Other"});
  EXPECT_EQ(codes(), Lines());
  EXPECT_EQ(log(), Lines());
  EXPECT_EQ(window().window.title, "Other");
}

// ---- The long-time sheet ----

TEST_F(ProjectOpening, LoadsTheSheetOnceAndUsesItAgain) {
  addProject();
  open();
  const HeadlessLongTimeSheet* loaded = &sheet();
  open();
  EXPECT_EQ(&sheet(), loaded);
  EXPECT_EQ(loaded->owner, &project());
}

TEST_F(ProjectOpening, ClosesASheetThatIsNotUpWithoutHarm) {
  project().didEndLongTimeSheetReturnCodeContextInfo();
  EXPECT_EQ(host.interfaces.longTimeSheet(), nullptr);
  addProject();
  open();
  project().didEndLongTimeSheetReturnCodeContextInfo();
  EXPECT_FALSE(sheetIsUp());
  EXPECT_TRUE(project().opened());
}

TEST_F(ProjectOpening, ShowsProgressWithoutTouchingTheRestOfTheIndicator) {
  addProject();
  open();
  const HeadlessProgressIndicator before = sheet().indicator;
  project().updateLongTerm(12.5);
  EXPECT_EQ(sheet().indicator.doubleValue, 12.5);
  EXPECT_EQ(sheet().indicator.minValue, before.minValue);
  EXPECT_EQ(sheet().indicator.maxValue, before.maxValue);
  EXPECT_EQ(sheet().indicator.isIndeterminate, before.isIndeterminate);
  EXPECT_EQ(sheet().indicator.isAnimated, before.isAnimated);
}

TEST_F(ProjectOpening, LeavesAnOpenProjectAloneWhenTheCancelButtonIsPressed) {
  addProject();
  open();
  project().longTimeCanceled();
  EXPECT_TRUE(project().opened());
  EXPECT_EQ(keys(), (Lines{"Open", "Close"}));
}

}  // namespace
}  // namespace glossmill
