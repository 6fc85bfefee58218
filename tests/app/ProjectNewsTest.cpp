#include <gtest/gtest.h>

#include "app/ProjectNews.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

/// Notes what is to be watched; the test says when something has changed.
class ScriptedWatch : public FileWatch {
 public:
  void watch(const std::vector<FileUrl>& files) override { watched = files; }
  std::vector<FileUrl> watched;
};

constexpr const char* kGermanBefore = "\"Open\" = \"Auf\";\n\"Nowhere\" = \"x\";\n\"Never\" = \"y\";\n";
constexpr const char* kGermanAfter = "\n/* Menu */\n\"Open\" = \"Auf\"\n\n";
constexpr const char* kFrench = "\n/* Menu */\n\"Open\" = \"Ouvrir\"\n\n";

/// German has two entries that no call asks for, French is as a save writes it.
class ProjectNewsTest : public testing::Test {
 protected:
  void SetUp() override {
    m_test.addString("Open", "Menu");
    m_test.addLanguage("de", kGermanBefore);
    m_test.addLanguage("fr", kFrench);
    m_test.application.openProjectWindow();
    m_news.emplace(m_host, project(), m_test.application.news(), m_watch);
    m_news->saves.show = [this](const std::string& id) { m_shown = id; };
    openWithoutPatience();
  }
  void openWithoutPatience() {
    ProjectOptions options;
    options.lockPatience = std::chrono::milliseconds(0);
    ASSERT_TRUE(project().openProjectAt(FileUrl(TestProject::kDirectory), options));
    m_test.host.runUntilIdle();
  }
  ProjectWindowController& project() { return m_test.project(); }
  std::string text() {
    const News* news = m_test.application.news().current();
    return news && news->kind != NewsKind::Offer ? news->text : "";
  }
  std::vector<std::string> buttons() {
    std::vector<std::string> titles;
    for (const NewsAction& action : m_test.application.news().current()->actions) titles.push_back(action.title);
    return titles;
  }
  void press(std::size_t button) {
    m_test.application.news().perform(button);
    m_test.host.runUntilIdle();
  }
  void killASaveInTheMiddle() {
    m_test.host.files.addFile(stringsFileOf("fr"), "\"Open\" = \"Ouvrir\";");
    openWithoutPatience();
    m_test.host.saves.onOperation = [this](const std::string& operation) {
      if (operation == "rename " + stringsFileOf("fr")) m_test.host.saves.killNow();
    };
    EXPECT_THROW(project().saveProject(), InMemorySaveDisk::Killed);
    m_test.host.saves.onOperation = nullptr;
    m_test.host.saves.goOn();
  }

  TestProject m_test;
  const Host m_host = m_test.host.parts();
  ScriptedWatch m_watch;
  std::optional<ProjectNews> m_news;
  std::string m_shown;
};

using Buttons = std::vector<std::string>;

TEST_F(ProjectNewsTest, TellsWhichEntriesASaveHasNotWrittenAgain) {
  EXPECT_TRUE(project().saveProject());
  EXPECT_EQ(text(), "de: 3 entries before, 1 after, 2 not written again");
  EXPECT_EQ(buttons(), (Buttons{"Show", "Restore"}));
  press(0);
  EXPECT_EQ(m_shown, project().lastSave().id);
}

TEST_F(ProjectNewsTest, BringsThemBackAndReadsTheProjectAnew) {
  EXPECT_TRUE(project().saveProject());
  EXPECT_EQ(m_test.savedFile("de"), kGermanAfter);
  press(1);
  EXPECT_EQ(m_test.savedFile("de"), kGermanBefore);
  EXPECT_TRUE(project().opened());
  EXPECT_EQ(text(), "");
  const std::vector<SavedVersion> versions = m_news->restorer.versions();
  ASSERT_EQ(versions.size(), 2U);
  EXPECT_TRUE(versions.front().manifest.command.starts_with("restore --from "));
}

TEST_F(ProjectNewsTest, NamesSeveralLanguages) {
  m_test.host.files.addFile(stringsFileOf("fr"), "\"Open\" = \"Ouvrir\";\n\"Jamais\" = \"x\";\n");
  openWithoutPatience();
  EXPECT_TRUE(project().saveProject());
  EXPECT_EQ(text(), "Entries of 2 languages were not written again: de 2, fr 1");
}

TEST_F(ProjectNewsTest, SaysNothingOfASaveThatKeptEverything) {
  EXPECT_TRUE(project().saveLanguage(m_test.language("fr")));
  EXPECT_EQ(text(), "");
}

TEST_F(ProjectNewsTest, TellsWhoWritesTheProjectAndTriesAgain) {
  ProjectLock other(m_test.host.files, m_test.host.saves, FileUrl(TestProject::kDirectory));
  ASSERT_FALSE(other.acquire([] { return false; }).value());
  EXPECT_FALSE(project().saveProject());
  EXPECT_EQ(text(), "Nothing was written: process 7 is writing this project");
  EXPECT_EQ(buttons(), Buttons{"Try Again"});
  other.release();
  press(0);
  EXPECT_EQ(m_test.savedFile("de"), kGermanAfter);
  EXPECT_EQ(text(), "de: 3 entries before, 1 after, 2 not written again");
}

TEST_F(ProjectNewsTest, OffersToFinishASaveThatWasCutShort) {
  killASaveInTheMiddle();
  openWithoutPatience();
  EXPECT_EQ(text(), "A save of this project was cut short: some files are new, others are not");
  EXPECT_EQ(buttons(), (Buttons{"Finish", "Take Back"}));
  press(0);
  EXPECT_EQ(m_test.savedFile("de"), kGermanAfter);
  EXPECT_EQ(m_test.savedFile("fr"), kFrench);
  EXPECT_EQ(text(), "");
  EXPECT_TRUE(project().saveProject());
}

TEST_F(ProjectNewsTest, OffersToTakeItBack) {
  killASaveInTheMiddle();
  openWithoutPatience();
  press(1);
  EXPECT_EQ(m_test.savedFile("de"), kGermanBefore);
  EXPECT_EQ(m_test.savedFile("fr"), "\"Open\" = \"Ouvrir\";");
  EXPECT_EQ(text(), "");
  EXPECT_TRUE(project().saveProject());
}

TEST_F(ProjectNewsTest, TakesASaveThatWasCutShortBackAsAWholeOnly) {
  killASaveInTheMiddle();
  openWithoutPatience();
  const std::string id = m_news->restorer.versions().front().id;
  EXPECT_TRUE(m_news->restorer.restore(id, {FileUrl(stringsFileOf("fr"))}));
  m_test.host.runUntilIdle();
  EXPECT_EQ(m_test.savedFile("de"), kGermanBefore);
}

TEST_F(ProjectNewsTest, OffersBothWhenASaveIsRefusedForIt) {
  killASaveInTheMiddle();
  EXPECT_FALSE(project().saveProject());
  EXPECT_EQ(buttons(), (Buttons{"Finish", "Take Back"}));
}

TEST_F(ProjectNewsTest, DoesNotTakeASaveAtWorkForOneThatWasCutShort) {
  killASaveInTheMiddle();
  ProjectLock other(m_test.host.files, m_test.host.saves, FileUrl(TestProject::kDirectory));
  ASSERT_FALSE(other.acquire([] { return false; }).value());
  openWithoutPatience();
  EXPECT_EQ(text(), "");
}

TEST_F(ProjectNewsTest, AsksBeforeAFileThatWasEditedSinceIsBroughtBack) {
  EXPECT_TRUE(project().saveProject());
  m_test.host.files.addFile(stringsFileOf("de"), "edited");
  m_test.host.panels.willAnswer(AlertAnswer::Default);
  EXPECT_FALSE(m_news->restorer.restore(*project().lastSave().id));
  EXPECT_EQ(m_test.savedFile("de"), "edited");
  EXPECT_EQ(m_test.host.panels.alerts.back().escape, AlertAnswer::Default);
  m_test.host.panels.willAnswer(AlertAnswer::Alternate);
  EXPECT_TRUE(m_news->restorer.restore(*project().lastSave().id));
  EXPECT_EQ(m_test.savedFile("de"), kGermanBefore);
  m_test.host.runUntilIdle();
}

TEST_F(ProjectNewsTest, BringsBackOnlyTheChosenFiles) {
  m_test.host.files.addFile(stringsFileOf("fr"), "\"Open\" = \"Ouvrir\";");
  openWithoutPatience();
  EXPECT_TRUE(project().saveProject());
  EXPECT_TRUE(m_news->restorer.restore(*project().lastSave().id, {FileUrl(stringsFileOf("fr"))}));
  m_test.host.runUntilIdle();
  EXPECT_EQ(m_test.savedFile("fr"), "\"Open\" = \"Ouvrir\";");
  EXPECT_EQ(m_test.savedFile("de"), kGermanAfter);
}

TEST_F(ProjectNewsTest, LeavesEverythingWhenUnsavedEditsAreToStay) {
  EXPECT_TRUE(project().saveProject());
  project().setChanged(true);
  m_test.host.panels.willAnswer(AlertAnswer::Default);
  EXPECT_FALSE(m_news->restorer.restore(*project().lastSave().id));
  EXPECT_EQ(m_test.savedFile("de"), kGermanAfter);
  EXPECT_TRUE(project().changed());
}

TEST_F(ProjectNewsTest, WatchesTheStringsFilesAndTheProjectFile) {
  std::vector<std::string> watched;
  for (const FileUrl& file : m_watch.watched) watched.push_back(file.path());
  ASSERT_EQ(watched.size(), 3U);
  EXPECT_TRUE(watched.front().ends_with(".xcodeproj/project.pbxproj"));
  EXPECT_EQ(watched[1], stringsFileOf("de"));
  EXPECT_EQ(watched[2], stringsFileOf("fr"));
  project().closeProject();
  EXPECT_TRUE(m_watch.watched.empty());
}

TEST_F(ProjectNewsTest, TellsOfFilesThatOthersHaveChangedAndReadsThemAnew) {
  m_watch.changed();
  EXPECT_EQ(text(), "");
  m_test.host.files.addFile(stringsFileOf("fr"), "\"Open\" = \"Ouvre\";");
  m_watch.changed();
  EXPECT_EQ(text(), "fr.lproj/Localizable.strings changed on disk");
  m_test.host.files.remove(stringsFileOf("de"));
  m_watch.changed();
  EXPECT_EQ(text(), "2 files changed on disk");
  EXPECT_EQ(buttons(), Buttons{"Reload"});
  press(0);
  EXPECT_EQ(m_test.translation("Open", "fr"), "Ouvre");
  EXPECT_EQ(text(), "");
}

TEST_F(ProjectNewsTest, TellsOfTheSameChangeOnceAndWithdrawsWhatIsOver) {
  m_test.host.files.addFile(stringsFileOf("fr"), "edited");
  m_watch.changed();
  m_test.application.news().dismiss();
  m_watch.changed();
  EXPECT_EQ(text(), "");
  m_test.host.files.addFile(stringsFileOf("fr"), "edited once more");
  m_watch.changed();
  EXPECT_NE(text(), "");
  m_test.host.files.addFile(stringsFileOf("fr"), kFrench);
  m_watch.changed();
  EXPECT_EQ(text(), "");
}

TEST_F(ProjectNewsTest, DoesNotCountItsOwnSaves) {
  EXPECT_TRUE(project().saveProject());
  m_test.application.news().dismiss();
  m_watch.changed();
  EXPECT_EQ(text(), "");
}

TEST_F(ProjectNewsTest, TellsOfAnotherWindowOnTheSameProject) {
  project().closeProject();
  OpenWindows other(m_test.host.files, m_test.host.saves, FileUrl(TestProject::kDirectory));
  other.enter();
  openWithoutPatience();
  EXPECT_EQ(text(), "This project is open in another window too (process 7)");
  EXPECT_EQ(other.others().size(), 1U);
  project().closeProject();
  EXPECT_TRUE(other.others().empty());
  other.leave();
  openWithoutPatience();
  EXPECT_EQ(text(), "");
}

}  // namespace
}  // namespace glossmill
