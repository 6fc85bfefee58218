#include <gtest/gtest.h>

#include "support/TestProject.h"

namespace glossmill {
namespace {

/// Four strings; German has all of them, French one.
class LanguageStatus : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* key : {"Add", "Bold", "Cut", "Done"}) m_test.addString(key);
    m_test.addLanguage("de", "\"Add\" = \"1\"\n\"Bold\" = \"2\"\n\"Cut\" = \"3\"\n\"Done\" = \"4\"\n");
    m_test.addLanguage("fr", "\"Add\" = \"1\"\n");
    m_test.open();
  }

  Status status(std::string_view code) { return m_test.project().languageStatus(*m_test.language(code)); }
  std::string statusString(std::string_view code) {
    return m_test.project().languageStatusString(*m_test.language(code));
  }

  TestProject m_test;
};

TEST_F(LanguageStatus, IsCompleteWhenEveryStringIsTranslated) {
  EXPECT_EQ(status("de"), Status::Complete);
  EXPECT_EQ(statusString("de"), "Complete");
}

TEST_F(LanguageStatus, TellsHowManyAreMissing) {
  EXPECT_EQ(status("fr"), Status::Incomplete);
  EXPECT_EQ(statusString("fr"), "3 missing");
}

TEST_F(LanguageStatus, CountsOnlyTheShownStrings) {
  m_test.select("Add", "de");
  m_test.type("");
  EXPECT_EQ(statusString("de"), "1 missing");
  m_test.setTranslation("Bold", "fr", "2");
  m_test.chooseFilter(1);
  EXPECT_EQ(statusString("de"), "1 missing");
  EXPECT_EQ(statusString("fr"), "2 missing");
}

TEST_F(LanguageStatus, FollowsEachEdit) {
  EXPECT_EQ(statusString("fr"), "3 missing");
  m_test.select("Cut", "fr");
  m_test.type("Couper");
  EXPECT_EQ(statusString("fr"), "2 missing");
  m_test.type("Couper !");
  EXPECT_EQ(statusString("fr"), "2 missing");
  m_test.type("");
  EXPECT_EQ(statusString("fr"), "3 missing");
}

TEST_F(LanguageStatus, IsCompleteWithoutStrings) {
  const Language french = *m_test.language("fr");
  m_test.project().clearProject();
  EXPECT_EQ(m_test.project().languageStatus(french), Status::Complete);
  EXPECT_EQ(m_test.project().languageStatusString(french), "Complete");
}

TEST_F(LanguageStatus, IsReachedThroughTheLanguage) {
  const StatusTexts& texts = m_test.project().statusTexts();
  EXPECT_EQ(m_test.language("fr")->status(&m_test.project()), Status::Incomplete);
  EXPECT_EQ(m_test.language("fr")->statusString(texts, &m_test.project()), "3 missing");
}

TEST_F(LanguageStatus, OfAStringCountsTheLanguages) {
  EXPECT_EQ(m_test.project().totalLanguages(), 2);
  const StatusTexts& texts = m_test.project().statusTexts();
  EXPECT_EQ(m_test.record("Add")->status(&m_test.project()), Status::Complete);
  EXPECT_EQ(m_test.record("Cut")->statusString(texts, &m_test.project()), "1 missing");
}

TEST(LanguageStatusTexts, AreInTheLanguageOfTheUser) {
  TestProject test({{"Complete", "Vollständig"}, {"Incomplete", "Unvollständig"}, {"%ld missing", "%ld fehlen"}});
  test.addString("Add");
  test.addString("Bold");
  test.addLanguage("de", "\"Add\" = \"1\"\n\"Bold\" = \"2\"\n");
  test.addLanguage("fr");
  test.open();
  EXPECT_EQ(test.project().languageStatusString(*test.language("de")), "Vollständig");
  EXPECT_EQ(test.project().languageStatusString(*test.language("fr")), "2 fehlen");
}

}  // namespace
}  // namespace glossmill
