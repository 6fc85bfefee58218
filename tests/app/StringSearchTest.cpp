#include <gtest/gtest.h>

#include "app/StringSearch.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

class StringSearchTest : public testing::Test {
 protected:
  StringSearchTest() {
    m_test.addString("Open", "Button");
    m_test.addString("Close", "Button");
    m_test.addString("Good night", "Greeting of the evening");
    m_test.addLanguage("de", "\"Open\" = \"Auf\";\n\"Close\" = \"Zu\";\n");
    m_test.addLanguage("fr", "\"Open\" = \"Ouvrir\";\n\"Good night\" = \"BONNE NUIT\";\n");
    m_test.open();
    m_test.select("Open", "de");
    m_view.emplace(m_test.project().stringController());
    m_search.emplace(m_test.project(), *m_view);
  }

  using Keys = std::vector<std::string>;
  Keys shown() { return m_test.shownKeys(); }
  Keys found(std::string_view text) {
    m_search->search(text);
    return shown();
  }
  std::string selected() { return m_test.project().selectedString() ? m_test.project().selectedString()->name() : ""; }
  void selectLanguage(std::string_view code) {
    m_test.select(selected(), code);
    m_search->translationsChanged();
    m_view->refresh();
  }

  TestProject m_test;
  std::optional<ViewFilter> m_view;
  std::optional<StringSearch> m_search;
};

TEST_F(StringSearchTest, LooksIntoKeyCommentAndTranslation) {
  EXPECT_EQ(found("NIGHT"), Keys({"Good night"}));
  EXPECT_EQ(found("button"), Keys({"Open", "Close"}));
  EXPECT_EQ(found("zu"), Keys({"Close"}));
  EXPECT_EQ(found("nowhere"), Keys());
}

TEST_F(StringSearchTest, ShowsEverythingForTheEmptyText) {
  found("night");
  EXPECT_EQ(found(""), Keys({"Open", "Close", "Good night"}));
}

TEST_F(StringSearchTest, LeavesTheListsAsTheyAre) {
  found("night");
  EXPECT_EQ(m_test.keys(), Keys({"Open", "Close", "Good night"}));
  EXPECT_EQ(m_test.project().languageStatusString(*m_test.language("de")), "1 missing");
}

TEST_F(StringSearchTest, FindsNothingAcrossTheEndOfAField) {
  EXPECT_EQ(found("OpenButton"), Keys());
  EXPECT_EQ(found("ButtonAuf"), Keys());
  EXPECT_EQ(found("ButtonZu"), Keys());
}

TEST_F(StringSearchTest, KeepsTheSelectedStringOrSelectsTheFirst) {
  m_test.select("Close", "de");
  found("o");
  EXPECT_EQ(selected(), "Close");
  found("night");
  EXPECT_EQ(selected(), "Good night");
  found("nowhere");
  EXPECT_EQ(selected(), "");
}

TEST_F(StringSearchTest, LooksIntoTheLanguageThatIsSelected) {
  EXPECT_EQ(found("bonne"), Keys());
  found("open");
  selectLanguage("fr");
  EXPECT_EQ(found("bonne"), Keys({"Good night"}));
  EXPECT_EQ(found("auf"), Keys());
}

TEST_F(StringSearchTest, KeepsTheSelectedStringWhenAnotherLanguageHasNoMatch) {
  EXPECT_EQ(found("auf"), Keys({"Open"}));
  selectLanguage("fr");
  EXPECT_EQ(shown(), Keys({"Open"}));
  EXPECT_EQ(found("auf"), Keys());
}

TEST_F(StringSearchTest, FindsWhatWasJustTyped) {
  found("gute");
  found("");
  m_test.select("Good night", "de");
  m_test.type("Gute Nacht");
  m_search->translationEdited();
  EXPECT_EQ(found("gute"), Keys({"Good night"}));
}

TEST_F(StringSearchTest, DoesNotNarrowTheTableWhileATranslationIsTyped) {
  found("auf");
  m_test.type("Oeffnen");
  m_search->translationEdited();
  EXPECT_EQ(shown(), Keys({"Open"}));
}

TEST_F(StringSearchTest, FindsWhatAJobHasChanged) {
  found("good");
  m_test.setTranslation("Good night", "de", "Gute Nacht");
  m_test.setTranslation("Close", "de", "Schliessen");
  m_search->translationsChanged();
  EXPECT_EQ(shown(), Keys({"Good night"}));
  EXPECT_EQ(found("schlie"), Keys({"Close"}));
  EXPECT_EQ(found("zu"), Keys());
}

TEST_F(StringSearchTest, FindsStringsThatTheFilterGivesBack) {
  found("u");
  m_test.chooseFilter(1);
  m_search->stringsChanged();
  EXPECT_EQ(found("button"), Keys({"Close"}));
  m_test.chooseFilter(0);
  m_search->stringsChanged();
  EXPECT_EQ(found("button"), Keys({"Close", "Open"}));
  EXPECT_EQ(found("auf"), Keys({"Open"}));
}

TEST_F(StringSearchTest, TakesAProjectWithoutASelectedLanguage) {
  m_test.project().languageController().clearSelection();
  m_search->translationsChanged();
  EXPECT_EQ(found("auf"), Keys());
  EXPECT_EQ(found("button"), Keys({"Open", "Close"}));
}

}  // namespace
}  // namespace glossmill
