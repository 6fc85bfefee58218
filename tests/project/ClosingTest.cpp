#include <gtest/gtest.h>

#include "support/TestProject.h"

namespace glossmill {
namespace {

constexpr const char* kOldGerman = "\"Open\" = \"Öffnen\";\n";

/// One string, German alone.
class Closing : public testing::Test {
 protected:
  void SetUp() override {
    m_test.addString("Open");
    m_test.addString("Close");
    m_test.addLanguage("de", kOldGerman);
    m_test.open();
  }

  void edit() {
    m_test.select("Close", "de");
    m_test.type("Schließen");
  }
  void expectEmptyProject() {
    EXPECT_FALSE(m_test.project().opened());
    EXPECT_FALSE(m_test.project().changed());
    EXPECT_TRUE(m_test.project().stringList().empty());
    EXPECT_TRUE(m_test.project().filteredStringList().empty());
    EXPECT_TRUE(m_test.project().languagesList()->empty());
    EXPECT_TRUE(m_test.project().fileList().empty());
  }

  TestProject m_test;
};

TEST_F(Closing, AsksNothingWithoutChanges) {
  EXPECT_TRUE(m_test.project().closeProject());
  EXPECT_TRUE(m_test.host.panels.alerts.empty());
  EXPECT_TRUE(m_test.host.files.written().empty());
  expectEmptyProject();
}

TEST_F(Closing, AsksWhatToDoAboutUnsavedTranslations) {
  edit();
  m_test.host.panels.willAnswer(AlertAnswer::Other);
  m_test.project().closeProject();
  ASSERT_EQ(m_test.host.panels.alerts.size(), 1U);
  const AlertRequest& question = m_test.host.panels.alerts.front();
  EXPECT_EQ(question.message, "Translations not saved. Quit anyway?");
  EXPECT_EQ(question.informativeText, "");
  EXPECT_EQ(question.defaultButton, "Save");
  EXPECT_EQ(question.alternateButton, "Delete");
  EXPECT_EQ(question.otherButton, "Cancel");
}

TEST_F(Closing, WithCancelKeepsEveryRecordAndTheChangedFlag) {
  edit();
  m_test.host.panels.willAnswer(AlertAnswer::Other);
  EXPECT_FALSE(m_test.project().closeProject());
  EXPECT_TRUE(m_test.project().opened());
  EXPECT_TRUE(m_test.project().changed());
  EXPECT_EQ(m_test.translation("Close", "de"), "Schließen");
  EXPECT_EQ(m_test.translation("Open", "de"), "Öffnen");
  EXPECT_EQ(m_test.savedFile("de"), kOldGerman);
}

TEST_F(Closing, WithDeleteClearsTheProjectWithoutTouchingAFile) {
  edit();
  m_test.host.panels.willAnswer(AlertAnswer::Alternate);
  EXPECT_TRUE(m_test.project().closeProject());
  expectEmptyProject();
  EXPECT_TRUE(m_test.host.files.written().empty());
  EXPECT_EQ(m_test.savedFile("de"), kOldGerman);
}

TEST_F(Closing, WithSaveWritesAndClearsTheProject) {
  edit();
  m_test.host.panels.willAnswer(AlertAnswer::Default);
  EXPECT_TRUE(m_test.project().closeProject());
  expectEmptyProject();
  EXPECT_EQ(m_test.savedFile("de"), "\n/*  */\n\"Open\" = \"Öffnen\"\n\n/*  */\n\"Close\" = \"Schließen\"\n\n");
}

TEST_F(Closing, WithASaveThatFailsKeepsTheProjectOpenAndUnchanged) {
  edit();
  m_test.host.files.failWriting(stringsFileOf("de"), "The disk is full.");
  m_test.host.panels.willAnswer(AlertAnswer::Default);
  EXPECT_FALSE(m_test.project().closeProject());
  EXPECT_EQ(m_test.alertMessages().back(), "Error saving Localizable.strings for language German");
  EXPECT_TRUE(m_test.project().opened());
  EXPECT_FALSE(m_test.project().changed());
  EXPECT_EQ(m_test.translation("Close", "de"), "Schließen");
  EXPECT_EQ(m_test.savedFile("de"), kOldGerman);
}

TEST_F(Closing, CommitsAnEditInProgressBeforeItAsks) {
  m_test.select("Close", "de");
  m_test.window().window.commitEdit = [this] { m_test.type("Schließen"); };
  m_test.host.panels.willAnswer(AlertAnswer::Default);
  EXPECT_TRUE(m_test.project().closeProject());
  EXPECT_NE(m_test.savedFile("de")->find("Schließen"), std::string::npos);
}

TEST_F(Closing, EmptiesTheLog) {
  ASSERT_NE(m_test.application.logWindowController()->logText(), "");
  m_test.project().closeProjectButton();
  EXPECT_EQ(m_test.application.logWindowController()->logText(), "");
}

TEST_F(Closing, ForgetsStringsThatTheFilterHeldBack) {
  m_test.chooseFilter(1);
  ASSERT_EQ(m_test.project().filteredStringList().size(), 1U);
  m_test.project().closeProject();
  expectEmptyProject();
  m_test.chooseFilter(0);
  EXPECT_TRUE(m_test.project().stringList().empty());
}

TEST_F(Closing, IsAskedForBeforeAnotherProjectIsOpened) {
  edit();
  m_test.host.panels.willAnswer(AlertAnswer::Other);
  EXPECT_FALSE(m_test.project().openProject(FileUrl()));
  EXPECT_EQ(m_test.host.panels.openPanels.size(), 1U);
  EXPECT_TRUE(m_test.project().opened());
}

TEST(ClosingWithoutAWindow, IsHarmless) {
  TestHost host;
  AppDelegate application(host.parts());
  ProjectWindowController project(host.parts(), application);
  EXPECT_TRUE(project.closeProject());
  EXPECT_FALSE(project.opened());
}

TEST(ClosingTexts, AreInTheLanguageOfTheUser) {
  TestProject test({{"Translations not saved. Quit anyway?", "Trotzdem beenden?"},
                    {"Save", "Sichern"},
                    {"Delete", "Verwerfen"},
                    {"Cancel", "Abbrechen"}});
  test.open();
  test.project().setChanged(true);
  test.host.panels.willAnswer(AlertAnswer::Other);
  EXPECT_FALSE(test.project().closeProject());
  const AlertRequest& question = test.host.panels.alerts.front();
  EXPECT_EQ(question.message, "Trotzdem beenden?");
  EXPECT_EQ(question.defaultButton, "Sichern");
  EXPECT_EQ(question.alternateButton, "Verwerfen");
  EXPECT_EQ(question.otherButton, "Abbrechen");
}

}  // namespace
}  // namespace glossmill
