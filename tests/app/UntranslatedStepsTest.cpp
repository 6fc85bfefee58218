#include <gtest/gtest.h>

#include "app/UntranslatedSteps.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

class UntranslatedStepsTest : public testing::Test {
 protected:
  UntranslatedStepsTest() {
    for (const char* key : {"A", "B", "C", "D"}) m_test.addString(key);
    m_test.addLanguage("de", "\"A\" = \"a\";\n\"C\" = \"c\";\n");
    m_test.addLanguage("fr", "\"A\" = \"a\";\n\"B\" = \"a\";\n\"C\" = \"c\";\n\"D\" = \"d\";\n");
    m_test.open();
    m_test.select("A", "de");
  }
  std::string next() {
    selectNextUntranslated(m_test.project());
    return selected();
  }
  std::string previous() {
    selectPreviousUntranslated(m_test.project());
    return selected();
  }
  std::string selected() { return m_test.project().selectedString() ? m_test.project().selectedString()->name() : ""; }

  TestProject m_test;
};

TEST_F(UntranslatedStepsTest, GoFromOneToTheNextAndOnAtTheOtherEnd) {
  EXPECT_EQ(next(), "B");
  EXPECT_EQ(next(), "D");
  EXPECT_EQ(next(), "B");
  EXPECT_EQ(previous(), "D");
  EXPECT_EQ(previous(), "B");
}

TEST_F(UntranslatedStepsTest, BeginAtAnEndWithoutASelection) {
  m_test.project().stringController().clearSelection();
  EXPECT_EQ(next(), "B");
  m_test.project().stringController().clearSelection();
  EXPECT_EQ(previous(), "D");
}

TEST_F(UntranslatedStepsTest, StayWhereNothingIsMissing) {
  m_test.select("C", "fr");
  EXPECT_FALSE(hasUntranslated(m_test.project()));
  EXPECT_EQ(next(), "C");
  EXPECT_EQ(previous(), "C");
  m_test.select("C", "de");
  EXPECT_TRUE(hasUntranslated(m_test.project()));
}

TEST_F(UntranslatedStepsTest, GoThroughWhatTheTableShows) {
  m_test.project().stringController().setFilter([](const LocalizeString& record) { return record.name() != "B"; });
  EXPECT_EQ(next(), "D");
  EXPECT_EQ(next(), "D");
}

}  // namespace
}  // namespace glossmill
