#include <gtest/gtest.h>

#include "support/TestProject.h"

namespace glossmill {
namespace {

/// Four strings; French has a text for Add and an empty entry for Bold.
class BaseLanguageJob : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* key : {"Add", "Bold", "Cut", "Done"}) m_test.addString(key);
    m_test.addLanguage("fr", "\"Add\" = \"Ajouter\"\n\"Bold\" = \"\"\n");
    m_test.open();
  }

  void fill() {
    m_test.project().languageFromBaseLanguage(m_test.language("fr"));
    m_test.host.runUntilIdle();
  }
  /// Presses the sheet's cancel button while the indicator shows `value`.
  void cancelAt(double value) {
    m_test.onProgress = [this, value](const HeadlessLongTimeSheet& sheet) {
      if (!sheet.indicator.isIndeterminate && sheet.indicator.doubleValue == value) m_test.project().longTimeCanceled();
    };
  }
  void expectEnded() {
    EXPECT_FALSE(m_test.sheetIsUp());
    EXPECT_FALSE(m_test.sheet().window.isVisible);
    EXPECT_FALSE(m_test.project().longJobRunning());
    EXPECT_EQ(m_test.window().stringTableView.updatesDepth, 0);
  }

  TestProject m_test;
};

TEST_F(BaseLanguageJob, GivesStringsWithoutAnEntryTheirKeysAsTranslations) {
  fill();
  EXPECT_EQ(m_test.translation("Cut", "fr"), "Cut");
  EXPECT_EQ(m_test.translation("Done", "fr"), "Done");
  EXPECT_EQ(m_test.record("Cut")->status(&m_test.project()), Status::Complete);
  EXPECT_EQ(m_test.project().languageStatus(*m_test.language("fr")), Status::Complete);
  expectEnded();
}

TEST_F(BaseLanguageJob, UpdatesTheStatusOfTheLanguage) {
  EXPECT_EQ(m_test.project().languageStatusString(*m_test.language("fr")), "2 missing");
  fill();
  EXPECT_EQ(m_test.project().languageStatusString(*m_test.language("fr")), "Complete");
}

TEST_F(BaseLanguageJob, NeverOverwritesAnEntryNotEvenAnEmptyOne) {
  fill();
  EXPECT_EQ(m_test.translation("Add", "fr"), "Ajouter");
  EXPECT_EQ(m_test.translation("Bold", "fr"), "");
}

TEST_F(BaseLanguageJob, RaisesTheChangedFlagWithoutANotification) {
  int notifications = 0;
  m_test.host.notifications.addObserver(this, kTranslationChangedNotification, [&](const void*) { ++notifications; });
  fill();
  EXPECT_TRUE(m_test.project().changed());
  EXPECT_TRUE(m_test.window().window.isDocumentEdited);
  EXPECT_EQ(notifications, 0);
}

TEST_F(BaseLanguageJob, IsOneStepThroughTheDoorForEdits) {
  std::vector<EditStep> steps;
  m_test.project().edits().addObserver([&](const Edit&, const EditStep& step) { steps.push_back(step); });
  fill();
  m_test.setTranslation("Cut", "fr", "Couper");
  ASSERT_EQ(steps.size(), 3U);
  EXPECT_EQ(steps[0].kind, EditKind::Fill);
  EXPECT_EQ(steps[0].number, steps[1].number);
  EXPECT_NE(steps[1].number, steps[2].number);
}

TEST_F(BaseLanguageJob, KeepsTheChangedFlagOfALanguageThatHasEverything) {
  for (const char* key : {"Cut", "Done"}) m_test.setTranslation(key, "fr", "…");
  std::vector<double> values;
  m_test.onProgress = [&values](const HeadlessLongTimeSheet& sheet) { values.push_back(sheet.indicator.doubleValue); };
  fill();
  EXPECT_FALSE(m_test.project().changed());
  EXPECT_EQ(values.back(), 4.0);

  m_test.project().setChanged(true);
  fill();
  EXPECT_TRUE(m_test.project().changed());
}

TEST_F(BaseLanguageJob, CountsEveryStringInTheSheet) {
  std::vector<double> values;
  m_test.onProgress = [&](const HeadlessLongTimeSheet& sheet) {
    if (sheet.indicator.doubleValue > 0) values.push_back(sheet.indicator.doubleValue);
  };
  m_test.project().languageFromBaseLanguage(m_test.language("fr"));
  EXPECT_TRUE(m_test.sheetIsUp());
  EXPECT_EQ(m_test.sheet().title.stringValue, "Creating base language...");
  EXPECT_FALSE(m_test.sheet().indicator.isIndeterminate);
  EXPECT_EQ(m_test.sheet().indicator.minValue, 0.0);
  EXPECT_EQ(m_test.sheet().indicator.maxValue, 4.0);
  EXPECT_EQ(m_test.sheet().indicator.doubleValue, 0.0);
  EXPECT_EQ(m_test.window().stringTableView.updatesDepth, 1);
  m_test.host.runUntilIdle();
  EXPECT_EQ(values, (std::vector<double>{1, 2, 3, 4}));
  expectEnded();
}

TEST_F(BaseLanguageJob, ReloadsBothTablesAndTheEditor) {
  const int strings = m_test.window().stringTableView.reloadCount;
  const int languages = m_test.window().languageTableView.reloadCount;
  const int editor = m_test.window().translationTextView.changeCount;
  fill();
  EXPECT_EQ(m_test.window().stringTableView.reloadCount, strings + 1);
  EXPECT_EQ(m_test.window().languageTableView.reloadCount, languages + 1);
  EXPECT_EQ(m_test.window().translationTextView.changeCount, editor + 1);
}

TEST_F(BaseLanguageJob, WritesNothingToDisk) {
  fill();
  EXPECT_TRUE(m_test.host.files.written().empty());
}

TEST_F(BaseLanguageJob, StopsBeforeTheNextStringWhenItIsCancelled) {
  cancelAt(3.0);
  fill();
  EXPECT_EQ(m_test.translation("Cut", "fr"), "Cut");
  EXPECT_EQ(m_test.translation("Done", "fr"), std::nullopt);
  EXPECT_EQ(m_test.sheet().indicator.doubleValue, 3.0);
  EXPECT_TRUE(m_test.project().changed());
  EXPECT_EQ(m_test.project().languageStatusString(*m_test.language("fr")), "1 missing");
  expectEnded();
}

TEST_F(BaseLanguageJob, CreatesNothingWhenItIsCancelledAtOnce) {
  cancelAt(0.0);
  fill();
  EXPECT_EQ(m_test.translation("Cut", "fr"), std::nullopt);
  EXPECT_FALSE(m_test.project().changed());
  expectEnded();
}

TEST_F(BaseLanguageJob, ForgetsTheCancelOfTheJobBefore) {
  cancelAt(0.0);
  fill();
  m_test.onProgress = {};
  fill();
  EXPECT_EQ(m_test.translation("Done", "fr"), "Done");
}

TEST_F(BaseLanguageJob, DoesNotVisitStringsThatTheFilterHoldsBack) {
  m_test.chooseFilter(1);
  std::vector<double> values;
  m_test.onProgress = [&values](const HeadlessLongTimeSheet& sheet) { values.push_back(sheet.indicator.doubleValue); };
  fill();
  EXPECT_EQ(m_test.sheet().indicator.maxValue, 2.0);
  EXPECT_EQ(values.back(), 2.0);
  m_test.chooseFilter(0);
  EXPECT_EQ(m_test.translation("Add", "fr"), "Ajouter");
}

TEST_F(BaseLanguageJob, EndsAtOnceWithoutStrings) {
  const std::shared_ptr<Language> french = m_test.language("fr");
  m_test.project().stringController().removeAllObjects();
  m_test.project().languageFromBaseLanguage(french);
  EXPECT_EQ(m_test.sheet().indicator.maxValue, 0.0);
  m_test.host.runUntilIdle();
  EXPECT_FALSE(m_test.project().changed());
  expectEnded();
}

TEST_F(BaseLanguageJob, DoesNothingWithoutALanguage) {
  m_test.project().languageFromBaseLanguage(nullptr);
  EXPECT_EQ(m_test.host.threads.jobsRunning(), 0);
  EXPECT_FALSE(m_test.sheetIsUp());
}

TEST_F(BaseLanguageJob, IsSavedByTheNextSave) {
  fill();
  m_test.project().saveProject();
  EXPECT_EQ(m_test.savedFile("fr"),
            "\n/*  */\n\"Add\" = \"Ajouter\"\n\n/*  */\n\"Bold\" = \"\"\n\n"
            "/*  */\n\"Cut\" = \"Cut\"\n\n/*  */\n\"Done\" = \"Done\"\n\n");
}

}  // namespace
}  // namespace glossmill
