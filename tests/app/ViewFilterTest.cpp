#include <gtest/gtest.h>

#include "app/StringSearch.h"
#include "app/ViewFilter.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

class ViewFilterTest : public testing::Test {
 protected:
  ViewFilterTest() {
    for (const char* key : {"Open", "Close", "Good night", "Good morning"}) m_test.addString(key);
    m_test.addLanguage("de", "\"Open\" = \"Auf\";\n");
    m_test.open();
    m_view.emplace(m_test.project().stringController());
    m_search.emplace(m_test.project(), *m_view);
  }

  using Keys = std::vector<std::string>;
  Keys shown() { return m_test.shownKeys(); }
  std::string selected() { return m_test.project().selectedString() ? m_test.project().selectedString()->name() : ""; }
  void showOnly(ViewPart part, const std::string& start) {
    m_view->set(part, [start](const LocalizeString& record) { return record.name().starts_with(start); });
  }

  TestProject m_test;
  std::optional<ViewFilter> m_view;
  std::optional<StringSearch> m_search;
};

TEST_F(ViewFilterTest, ShowsWhatMeetsEveryCondition) {
  showOnly(ViewPart::Table, "Good");
  EXPECT_EQ(shown(), Keys({"Good night", "Good morning"}));
  showOnly(ViewPart::Untranslated, "Good m");
  EXPECT_EQ(shown(), Keys({"Good morning"}));
  m_view->set(ViewPart::Table, nullptr);
  EXPECT_EQ(shown(), Keys({"Good morning"}));
  m_view->set(ViewPart::Untranslated, nullptr);
  EXPECT_EQ(shown(), Keys({"Open", "Close", "Good night", "Good morning"}));
  EXPECT_TRUE(m_view->isEmpty());
}

TEST_F(ViewFilterTest, CombinesWithASearchInEitherOrder) {
  m_search->search("night");
  showOnly(ViewPart::Table, "Good");
  EXPECT_EQ(shown(), Keys({"Good night"}));
  m_search->search("");
  EXPECT_EQ(shown(), Keys({"Good night", "Good morning"}));
  m_search->search("o");
  EXPECT_EQ(shown(), Keys({"Good night", "Good morning"}));
}

TEST_F(ViewFilterTest, LeavesListsCountsAndSavesAlone) {
  showOnly(ViewPart::Table, "nothing begins like this");
  EXPECT_EQ(shown(), Keys());
  EXPECT_EQ(m_test.keys(), Keys({"Open", "Close", "Good night", "Good morning"}));
  EXPECT_EQ(m_test.project().languageStatusString(*m_test.language("de")), "3 missing");
  EXPECT_TRUE(m_test.project().saveProject());
  EXPECT_EQ(m_test.savedFile("de"), "\n/*  */\n\"Open\" = \"Auf\"\n\n");
}

TEST_F(ViewFilterTest, SelectsTheFirstStringWhenTheSelectedOneGoes) {
  EXPECT_EQ(selected(), "Open");
  showOnly(ViewPart::Table, "Good");
  EXPECT_EQ(selected(), "Good night");
  showOnly(ViewPart::Unused, "Good");
  EXPECT_EQ(selected(), "Good night");
}

TEST_F(ViewFilterTest, KeepsTheSelectedStringWhileWhatItShowsChanges) {
  m_view->set(ViewPart::Untranslated,
              [this](const LocalizeString& record) { return record.isMissing(m_test.language("de")->code()); });
  m_test.select("Close", "de");
  m_test.type("Zu");
  m_view->refresh();
  EXPECT_EQ(shown(), Keys({"Close", "Good night", "Good morning"}));
  EXPECT_EQ(selected(), "Close");
  m_test.select("Good night", "de");
  m_view->refresh();
  EXPECT_EQ(shown(), Keys({"Good night", "Good morning"}));
}

TEST_F(ViewFilterTest, HoldsForStringsThatComeLater) {
  showOnly(ViewPart::Table, "Good");
  m_test.chooseFilter(1);
  EXPECT_EQ(shown(), Keys({"Good night", "Good morning"}));
  m_test.chooseFilter(0);
  EXPECT_EQ(shown(), Keys({"Good night", "Good morning"}));
}

}  // namespace
}  // namespace glossmill
