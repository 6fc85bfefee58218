#include <gtest/gtest.h>

#include "support/TestProject.h"

namespace glossmill {
namespace {

using Keys = std::vector<std::string>;

constexpr int kAll = 0;
constexpr int kNotComplete = 1;

/// Five strings in two languages; Bold and Done are complete.
class StringFilter : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* key : {"Add", "Bold", "Cut", "Done", "Edit"}) m_test.addString(key);
    m_test.addLanguage("de", "\"Add\" = \"1\"\n\"Bold\" = \"2\"\n\"Done\" = \"4\"\n");
    m_test.addLanguage("fr", "\"Bold\" = \"2\"\n\"Cut\" = \"3\"\n\"Done\" = \"4\"\n");
    m_test.open();
  }

  Keys heldBack() {
    Keys keys;
    for (const auto& record : m_test.project().filteredStringList()) keys.push_back(record->name());
    return keys;
  }

  TestProject m_test;
};

TEST_F(StringFilter, HoldsBackCompleteStringsInTheOrderOfTheList) {
  m_test.chooseFilter(kNotComplete);
  EXPECT_EQ(m_test.keys(), (Keys{"Add", "Cut", "Edit"}));
  EXPECT_EQ(heldBack(), (Keys{"Bold", "Done"}));
}

TEST_F(StringFilter, GivesThemBackBehindThoseThatStayedVisible) {
  m_test.chooseFilter(kNotComplete);
  m_test.chooseFilter(kAll);
  EXPECT_EQ(m_test.keys(), (Keys{"Add", "Cut", "Edit", "Bold", "Done"}));
  EXPECT_TRUE(m_test.project().filteredStringList().empty());
}

TEST_F(StringFilter, MovesNothingWhenNotCompleteIsChosenTwice) {
  m_test.chooseFilter(kNotComplete);
  m_test.chooseFilter(kNotComplete);
  EXPECT_EQ(m_test.keys(), (Keys{"Add", "Cut", "Edit"}));
  EXPECT_EQ(heldBack(), (Keys{"Bold", "Done"}));
}

TEST_F(StringFilter, LeavesAStringThatBecomesCompleteVisibleUntilItIsChosenAgain) {
  m_test.chooseFilter(kNotComplete);
  m_test.select("Add", "fr");
  m_test.type("Ajouter");
  EXPECT_EQ(m_test.keys(), (Keys{"Add", "Cut", "Edit"}));
  m_test.chooseFilter(kNotComplete);
  EXPECT_EQ(m_test.keys(), (Keys{"Cut", "Edit"}));
  EXPECT_EQ(heldBack(), (Keys{"Bold", "Done", "Add"}));
}

TEST_F(StringFilter, StoresAnyOtherChoiceAndMovesNothing) {
  m_test.chooseFilter(kNotComplete);
  for (const int other : {2, 7, -1}) {
    m_test.chooseFilter(other);
    EXPECT_EQ(m_test.host.defaults.integerForKey("StringFilterPopUp"), other);
    EXPECT_EQ(m_test.keys(), (Keys{"Add", "Cut", "Edit"}));
    EXPECT_EQ(heldBack(), (Keys{"Bold", "Done"}));
  }
}

TEST_F(StringFilter, StoresTheChoiceAndWritesTheSettingsAtOnce) {
  const int before = m_test.host.defaults.synchronizeCount();
  m_test.chooseFilter(kNotComplete);
  EXPECT_EQ(m_test.host.defaults.integerForKey("StringFilterPopUp"), kNotComplete);
  EXPECT_EQ(m_test.host.defaults.synchronizeCount(), before + 1);
}

TEST_F(StringFilter, ClosesItsBatchOfUpdates) {
  m_test.chooseFilter(kNotComplete);
  EXPECT_EQ(m_test.window().stringTableView.updatesDepth, 0);
}

TEST_F(StringFilter, KeepsTheSelectionOfAStringThatStays) {
  m_test.select("Cut", "de");
  m_test.chooseFilter(kNotComplete);
  ASSERT_TRUE(m_test.project().selectedString());
  EXPECT_EQ(m_test.project().selectedString()->name(), "Cut");
  EXPECT_EQ(m_test.project().stringController().selectedRow(), 1U);
}

TEST_F(StringFilter, IsAppliedAgainAfterTheNextScan) {
  m_test.chooseFilter(kNotComplete);
  m_test.window().stringFilterPopUp.selectItemAtIndex(kAll);
  m_test.open();
  EXPECT_EQ(m_test.window().stringFilterPopUp.selectedIndex, kNotComplete);
  EXPECT_EQ(m_test.keys(), (Keys{"Add", "Cut", "Edit"}));
  EXPECT_EQ(heldBack(), (Keys{"Bold", "Done"}));
}

TEST_F(StringFilter, CountsAStringWithAnEmptyEntryAsComplete) {
  m_test.setTranslation("Cut", "de", "");
  m_test.chooseFilter(kNotComplete);
  EXPECT_EQ(m_test.keys(), (Keys{"Add", "Edit"}));
}

TEST_F(StringFilter, FollowsTheNumberOfLanguages) {
  const auto italian = std::make_shared<Language>();
  italian->setIso639("it");
  m_test.project().languageController().addObject(italian);
  m_test.chooseFilter(kNotComplete);
  EXPECT_EQ(m_test.keys().size(), 5U);
  EXPECT_TRUE(heldBack().empty());
}

TEST(StringFilterAtStart, ShowsItemZeroWithoutAStoredChoice) {
  TestProject test;
  test.addString("Add");
  test.open();
  EXPECT_EQ(test.window().stringFilterPopUp.selectedIndex, kAll);
  EXPECT_EQ(test.keys(), (Keys{"Add"}));
}

TEST(StringFilterTexts, MayBeTheSameForTwoStatuses) {
  TestProject test({{"Complete", "So weit"}, {"Incomplete", "So weit"}});
  test.addString("Add");
  test.addString("Bold");
  test.addLanguage("de", "\"Add\" = \"1\"\n");
  test.open();
  test.chooseFilter(kNotComplete);
  EXPECT_EQ(test.keys(), (Keys{"Bold"}));
}

}  // namespace
}  // namespace glossmill
