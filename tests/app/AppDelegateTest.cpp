#include <gtest/gtest.h>

#include "app/AppDelegate.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

/// Three strings in two languages.
class ApplicationDelegate : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* key : {"Add", "Bold", "Cut"}) m_test.addString(key);
    m_test.addLanguage("de");
    m_test.addLanguage("fr");
  }
  void edit() {
    m_test.select("Bold", "fr");
    m_test.type("Gras");
  }
  bool enabled(int tag) { return m_test.application.validateMenuItem(tag); }

  TestProject m_test;
};

TEST_F(ApplicationDelegate, StartsIntoTheDirectoryPanel) {
  m_test.host.panels.willCancelOpenPanel();
  m_test.application.applicationDidFinishLaunching();
  ASSERT_EQ(m_test.host.panels.openPanels.size(), 1U);
  EXPECT_TRUE(m_test.host.panels.openPanels.front().directory.empty());
  EXPECT_TRUE(m_test.window().window.isVisible);
  EXPECT_FALSE(m_test.project().iso639Dict().all().empty());
}

TEST_F(ApplicationDelegate, StartsWithThePanelAtTheMostRecentProject) {
  m_test.host.defaults.setStringArray("RecentUrls", {"/x/App", "/x/Other"});
  m_test.host.panels.willCancelOpenPanel();
  m_test.application.applicationDidFinishLaunching();
  ASSERT_EQ(m_test.host.panels.openPanels.size(), 1U);
  EXPECT_EQ(m_test.host.panels.openPanels.front().directory, FileUrl("/x/App"));
  EXPECT_FALSE(m_test.project().opened());
}

TEST_F(ApplicationDelegate, StartsWithoutALogWindow) {
  m_test.host.panels.willCancelOpenPanel();
  m_test.application.applicationDidFinishLaunching();
  EXPECT_EQ(m_test.application.logWindowController(), nullptr);
  EXPECT_EQ(m_test.host.interfaces.logWindow(), nullptr);
}

TEST_F(ApplicationDelegate, MakesTheProjectWindowOnceAndShowsItAgain) {
  m_test.application.openProjectWindow();
  const ProjectWindowController* const made = m_test.application.projectWindowController();
  m_test.window().window.isVisible = false;
  m_test.application.openProjectWindow();
  EXPECT_EQ(m_test.application.projectWindowController(), made);
  EXPECT_TRUE(m_test.window().window.isVisible);
  EXPECT_EQ(m_test.window().window.showCount, 2);
}

TEST_F(ApplicationDelegate, OpensWithThePanelAnywhere) {
  m_test.open();
  m_test.host.panels.willCancelOpenPanel();
  m_test.application.open();
  EXPECT_TRUE(m_test.host.panels.openPanels.back().directory.empty());
  EXPECT_FALSE(m_test.project().opened());
}

TEST_F(ApplicationDelegate, ClosesTheProject) {
  m_test.open();
  m_test.application.close();
  EXPECT_FALSE(m_test.project().opened());
}

TEST_F(ApplicationDelegate, SavesTheProject) {
  m_test.open();
  edit();
  m_test.application.save();
  EXPECT_FALSE(m_test.project().changed());
  EXPECT_EQ(m_test.savedFile("fr"), "\n/*  */\n\"Bold\" = \"Gras\"\n\n");
}

TEST_F(ApplicationDelegate, StepsThroughStringsAndLanguages) {
  m_test.open();
  m_test.application.nextString();
  m_test.application.nextString();
  m_test.application.prevString();
  EXPECT_EQ(m_test.project().selectedString()->name(), "Bold");
  m_test.application.nextLanguage();
  EXPECT_EQ(m_test.project().selectedLanguage()->iso639(), "fr");
  m_test.application.prevLanguage();
  EXPECT_EQ(m_test.project().selectedLanguage()->iso639(), "de");
}

TEST_F(ApplicationDelegate, QuitsWithoutAWordWhenNothingWasChanged) {
  m_test.open();
  m_test.application.quit();
  EXPECT_TRUE(m_test.host.application.isTerminated);
  EXPECT_TRUE(m_test.host.panels.alerts.empty());
}

TEST_F(ApplicationDelegate, StaysWhenTheQuestionIsCancelled) {
  m_test.open();
  edit();
  m_test.host.panels.willAnswer(AlertAnswer::Other);
  m_test.application.quit();
  EXPECT_FALSE(m_test.host.application.isTerminated);
  EXPECT_TRUE(m_test.project().opened());
}

TEST_F(ApplicationDelegate, StaysWhenSavingFails) {
  m_test.open();
  edit();
  m_test.host.files.failWriting(stringsFileOf("fr"), "The disk is full.");
  m_test.host.panels.willAnswer(AlertAnswer::Default);
  m_test.application.quit();
  EXPECT_FALSE(m_test.host.application.isTerminated);
  EXPECT_TRUE(m_test.project().opened());
}

TEST_F(ApplicationDelegate, QuitsAfterSavingAndAfterDiscarding) {
  for (const AlertAnswer answer : {AlertAnswer::Default, AlertAnswer::Alternate}) {
    m_test.host.application.isTerminated = false;
    m_test.open();
    m_test.select("Bold", "fr");
    m_test.type(m_test.translation("Bold", "fr") ? "" : "Gras");
    m_test.host.panels.willAnswer(answer);
    m_test.application.quit();
    EXPECT_TRUE(m_test.host.application.isTerminated);
  }
  EXPECT_EQ(m_test.savedFile("fr"), "\n/*  */\n\"Bold\" = \"Gras\"\n\n");
}

TEST_F(ApplicationDelegate, AlwaysAgreesToTerminate) {
  m_test.open();
  edit();
  EXPECT_TRUE(m_test.application.applicationShouldTerminate());
  EXPECT_TRUE(m_test.host.panels.alerts.empty());
}

TEST_F(ApplicationDelegate, OffersUnsavedChangesOnceMoreOnTheWayOut) {
  m_test.open();
  edit();
  m_test.host.panels.willAnswer(AlertAnswer::Default);
  m_test.application.applicationWillTerminate();
  EXPECT_EQ(m_test.alertMessages(), (std::vector<std::string>{"Translations not saved. Quit anyway?"}));
  EXPECT_EQ(m_test.savedFile("fr"), "\n/*  */\n\"Bold\" = \"Gras\"\n\n");
}

TEST_F(ApplicationDelegate, CannotStopATerminationByCancelling) {
  m_test.open();
  edit();
  m_test.host.panels.willAnswer(AlertAnswer::Other);
  m_test.application.applicationWillTerminate();
  EXPECT_EQ(m_test.host.panels.alerts.size(), 1U);
  EXPECT_TRUE(m_test.project().changed());
}

TEST_F(ApplicationDelegate, AsksOnlyOnceWhenTheMenuQuits) {
  m_test.open();
  edit();
  m_test.host.application.onTerminate = [this] { m_test.application.applicationWillTerminate(); };
  m_test.host.panels.willAnswer(AlertAnswer::Alternate);
  m_test.application.quit();
  EXPECT_EQ(m_test.host.panels.alerts.size(), 1U);
}

TEST_F(ApplicationDelegate, EnablesProjectCommandsWhileAProjectIsOpen) {
  for (const int tag : {2, 5, 6, 7}) EXPECT_FALSE(enabled(tag)) << tag;
  m_test.open();
  for (const int tag : {2, 5, 6, 7}) EXPECT_TRUE(enabled(tag)) << tag;
  m_test.application.close();
  for (const int tag : {2, 5, 6, 7}) EXPECT_FALSE(enabled(tag)) << tag;
}

TEST_F(ApplicationDelegate, EnablesSavingWhileThereAreChanges) {
  EXPECT_FALSE(enabled(3));
  m_test.open();
  EXPECT_FALSE(enabled(3));
  edit();
  EXPECT_TRUE(enabled(3));
  m_test.application.save();
  EXPECT_FALSE(enabled(3));
}

TEST_F(ApplicationDelegate, EnablesClearMenuWhileThereAreRecentProjects) {
  EXPECT_FALSE(enabled(4));
  m_test.open();
  EXPECT_TRUE(enabled(4));
  m_test.application.clearRecent();
  EXPECT_FALSE(enabled(4));
}

TEST_F(ApplicationDelegate, EnablesNavigationByTheSelections) {
  for (const int tag : {11, 12, 13, 14}) EXPECT_FALSE(enabled(tag)) << tag;
  m_test.open();
  m_test.select("Add", "fr");
  EXPECT_FALSE(enabled(11));
  EXPECT_TRUE(enabled(12));
  EXPECT_TRUE(enabled(13));
  EXPECT_FALSE(enabled(14));
  m_test.select("Cut", "de");
  EXPECT_TRUE(enabled(11));
  EXPECT_FALSE(enabled(12));
  EXPECT_FALSE(enabled(13));
  EXPECT_TRUE(enabled(14));
}

TEST_F(ApplicationDelegate, EnablesEveryOtherCommandAlways) {
  for (const int tag : {-1, 0, 1, 8, 9, 10, 15, 99}) EXPECT_TRUE(enabled(tag)) << tag;
  m_test.open();
  for (const int tag : {-1, 0, 1, 8, 9, 10, 15, 99}) EXPECT_TRUE(enabled(tag)) << tag;
}

TEST_F(ApplicationDelegate, EnablesTheWayToAMessageWhileThereIsOneUntilTheProjectIsClosed) {
  m_test.open();
  EXPECT_FALSE(enabled(20));
  m_test.application.news().post({"a", "text", {}, NewsKind::Note});
  EXPECT_TRUE(enabled(20));
  m_test.application.close();
  EXPECT_FALSE(enabled(20));
}

TEST(ApplicationDelegateWithoutAProjectWindow, DoesNothingOnProjectCommands) {
  TestHost host;
  AppDelegate application(host.parts());
  using Command = void (AppDelegate::*)();
  for (const Command command : {&AppDelegate::open, &AppDelegate::close, &AppDelegate::save, &AppDelegate::prevString,
                                &AppDelegate::nextString, &AppDelegate::prevLanguage, &AppDelegate::nextLanguage}) {
    (application.*command)();
  }
  application.recentMenu("/x/App");
  application.applicationWillTerminate();
  EXPECT_EQ(application.projectWindowController(), nullptr);
  EXPECT_TRUE(host.panels.openPanels.empty());
}

}  // namespace
}  // namespace glossmill
