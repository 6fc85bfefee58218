#include <gtest/gtest.h>

#include "support/TestProject.h"

namespace glossmill {
namespace {

using FirstResponder = HeadlessWindow::FirstResponder;

class Navigation : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* key : {"Add", "Bold", "Cut"}) m_test.addString(key);
    m_test.addLanguage("de");
    m_test.addLanguage("fr");
    m_test.open();
  }

  ProjectWindowController& project() { return m_test.project(); }
  std::string selectedKey() { return project().selectedString()->name(); }
  std::string selectedCode() { return project().selectedLanguage()->iso639(); }

  TestProject m_test;
};

TEST_F(Navigation, StartsAtTheFirstStringAndTheFirstLanguage) {
  EXPECT_EQ(selectedKey(), "Add");
  EXPECT_EQ(selectedCode(), "de");
}

TEST_F(Navigation, StepsThroughTheStringsBothWays) {
  project().selectNextString();
  EXPECT_EQ(selectedKey(), "Bold");
  project().selectNextString();
  EXPECT_EQ(selectedKey(), "Cut");
  project().selectPrevString();
  EXPECT_EQ(selectedKey(), "Bold");
}

TEST_F(Navigation, StepsThroughTheLanguagesBothWays) {
  project().selectNextLanguage();
  EXPECT_EQ(selectedCode(), "fr");
  project().selectPrevLanguage();
  EXPECT_EQ(selectedCode(), "de");
}

TEST_F(Navigation, IsDisabledBeforeTheFirstAndAfterTheLastString) {
  EXPECT_FALSE(project().canSelectPrevString());
  EXPECT_TRUE(project().canSelectNextString());
  m_test.select("Bold", "de");
  EXPECT_TRUE(project().canSelectPrevString());
  EXPECT_TRUE(project().canSelectNextString());
  m_test.select("Cut", "de");
  EXPECT_TRUE(project().canSelectPrevString());
  EXPECT_FALSE(project().canSelectNextString());
}

TEST_F(Navigation, IsDisabledBeforeTheFirstAndAfterTheLastLanguage) {
  EXPECT_FALSE(project().canSelectPrevLanguage());
  EXPECT_TRUE(project().canSelectNextLanguage());
  m_test.select("Add", "fr");
  EXPECT_TRUE(project().canSelectPrevLanguage());
  EXPECT_FALSE(project().canSelectNextLanguage());
}

TEST_F(Navigation, DoesNotWrapAround) {
  m_test.select("Cut", "fr");
  project().selectNextString();
  project().selectNextLanguage();
  EXPECT_EQ(selectedKey(), "Cut");
  EXPECT_EQ(selectedCode(), "fr");
}

TEST_F(Navigation, IsDisabledWithoutRows) {
  project().clearProject();
  EXPECT_FALSE(project().canSelectPrevString());
  EXPECT_FALSE(project().canSelectNextString());
  EXPECT_FALSE(project().canSelectPrevLanguage());
  EXPECT_FALSE(project().canSelectNextLanguage());
  project().selectNextString();
  EXPECT_FALSE(project().selectedString());
}

TEST_F(Navigation, BeginsAtEitherEndWhileNothingIsSelected) {
  project().stringController().clearSelection();
  project().languageController().clearSelection();
  EXPECT_TRUE(project().canSelectPrevString());
  EXPECT_TRUE(project().canSelectNextLanguage());
  project().selectPrevString();
  project().selectNextLanguage();
  EXPECT_EQ(selectedKey(), "Cut");
  EXPECT_EQ(selectedCode(), "de");
}

TEST_F(Navigation, FollowsTheOrderOfTheTable) {
  project().stringController().setLess(
      [](const LocalizeString& a, const LocalizeString& b) { return a.name() > b.name(); });
  m_test.select("Bold", "de");
  project().selectNextString();
  EXPECT_EQ(selectedKey(), "Add");
}

TEST_F(Navigation, CommitsAnEditInProgressToTheStringThatItWasMadeFor) {
  m_test.window().window.commitEdit = [this] { m_test.type("Hinzufügen"); };
  project().selectNextString();
  EXPECT_EQ(selectedKey(), "Bold");
  EXPECT_EQ(m_test.translation("Add", "de"), "Hinzufügen");
  EXPECT_EQ(m_test.translation("Bold", "de"), std::nullopt);
}

TEST_F(Navigation, CommitsAnEditInProgressToTheLanguageThatItWasMadeFor) {
  m_test.window().window.commitEdit = [this] { m_test.type("Hinzufügen"); };
  project().selectNextLanguage();
  EXPECT_EQ(m_test.translation("Add", "de"), "Hinzufügen");
  EXPECT_EQ(m_test.translation("Add", "fr"), std::nullopt);
}

TEST_F(Navigation, PutsTheKeyboardBackIntoTheEditor) {
  using Step = void (ProjectWindowController::*)();
  for (const Step step : {&ProjectWindowController::selectPrevString, &ProjectWindowController::selectNextString,
                          &ProjectWindowController::selectPrevLanguage, &ProjectWindowController::selectNextLanguage}) {
    m_test.window().window.firstResponder = FirstResponder::Nothing;
    (project().*step)();
    EXPECT_EQ(m_test.window().window.firstResponder, FirstResponder::MainField);
  }
}

}  // namespace
}  // namespace glossmill
