#include <gtest/gtest.h>

#include <algorithm>

#include "support/TestProject.h"

namespace glossmill {
namespace {

constexpr const char* kExported = "/out/App_fr.txt";

/// Three strings of which only the second lacks a French translation.
class ExportJob : public testing::Test {
 protected:
  void SetUp() override {
    m_test.addString("Add", "Menu");
    m_test.addString("Bold", "Style");
    m_test.addString("Cut");
    m_test.addLanguage("fr", "\"Add\" = \"Ajouter\"\n\"Cut\" = \"Couper\"\n");
    m_test.host.files.addDirectory("/out");
    m_test.open();
  }

  void exportTo(std::string_view path, ExportScope scope) {
    m_test.project().exportLanguageToFileAllStrings(m_test.language("fr"), FileUrl(path), scope);
    m_test.host.runUntilIdle();
  }
  std::optional<std::string> exported() { return m_test.host.files.bytesOf(kExported); }
  void cancelAt(double value) {
    m_test.onProgress = [this, value](const HeadlessLongTimeSheet& sheet) {
      if (!sheet.indicator.isIndeterminate && sheet.indicator.doubleValue == value) m_test.project().longTimeCanceled();
    };
  }
  void expectEnded() {
    EXPECT_FALSE(m_test.sheetIsUp());
    EXPECT_FALSE(m_test.project().longJobRunning());
    EXPECT_EQ(m_test.window().stringTableView.updatesDepth, 0);
  }

  TestProject m_test;
};

TEST_F(ExportJob, WritesOnlyTheUntranslatedStringsUnderTheirNumbers) {
  exportTo(kExported, ExportScope::Untranslated);
  EXPECT_EQ(exported(), "\n--- 2 ---\n/* Style */\nBold\n\n\n");
  expectEnded();
}

TEST_F(ExportJob, WritesAllStringsWithTheirTranslations) {
  exportTo(kExported, ExportScope::AllStrings);
  EXPECT_EQ(exported(),
            "\n--- 1 ---\n/* Menu */\nAdd\nAjouter\n\n"
            "--- 2 ---\n/* Style */\nBold\n\n\n"
            "--- 3 ---\n/*  */\nCut\nCouper\n\n");
  expectEnded();
}

TEST_F(ExportJob, LeavesOutAStringWithAnEmptyEntryUnlessAllAreWanted) {
  m_test.setTranslation("Bold", "fr", "");
  exportTo(kExported, ExportScope::Untranslated);
  EXPECT_EQ(exported(), "\n");
  exportTo(kExported, ExportScope::AllStrings);
  EXPECT_NE(exported()->find("--- 2 ---\n/* Style */\nBold\n\n\n"), std::string::npos);
}

TEST_F(ExportJob, WritesASingleLineFeedForAnEmptyList) {
  m_test.project().stringController().removeAllObjects();
  exportTo(kExported, ExportScope::AllStrings);
  EXPECT_EQ(exported(), "\n");
  EXPECT_EQ(m_test.sheet().indicator.maxValue, 0.0);
  expectEnded();
}

TEST_F(ExportJob, NeitherWritesNorCountsStringsThatTheFilterHoldsBack) {
  m_test.chooseFilter(1);
  exportTo(kExported, ExportScope::AllStrings);
  EXPECT_EQ(exported(), "\n--- 1 ---\n/* Style */\nBold\n\n\n");
}

TEST_F(ExportJob, KeepsTheOrderOfTheListWhateverTheTableShows) {
  m_test.project().stringController().setLess(
      [](const LocalizeString& a, const LocalizeString& b) { return a.name() > b.name(); });
  exportTo(kExported, ExportScope::Untranslated);
  EXPECT_EQ(exported(), "\n--- 2 ---\n/* Style */\nBold\n\n\n");
}

TEST_F(ExportJob, WritesPlainTextWhateverTheFileIsCalled) {
  exportTo("/out/App_fr.rtf", ExportScope::Untranslated);
  EXPECT_EQ(m_test.host.files.bytesOf("/out/App_fr.rtf"), "\n--- 2 ---\n/* Style */\nBold\n\n\n");
}

TEST_F(ExportJob, CountsEveryStringInTheSheetAlsoThoseItLeavesOut) {
  std::vector<double> values;
  m_test.onProgress = [&](const HeadlessLongTimeSheet& sheet) {
    if (sheet.indicator.doubleValue > 0) values.push_back(sheet.indicator.doubleValue);
  };
  m_test.project().exportLanguageToFileAllStrings(m_test.language("fr"), FileUrl(kExported), ExportScope::Untranslated);
  EXPECT_TRUE(m_test.sheetIsUp());
  EXPECT_EQ(m_test.sheet().title.stringValue, "Exporting strings...");
  EXPECT_FALSE(m_test.sheet().indicator.isIndeterminate);
  EXPECT_EQ(m_test.sheet().indicator.minValue, 0.0);
  EXPECT_EQ(m_test.sheet().indicator.maxValue, 3.0);
  EXPECT_EQ(m_test.sheet().indicator.doubleValue, 0.0);
  EXPECT_EQ(m_test.window().stringTableView.updatesDepth, 0);
  m_test.host.runUntilIdle();
  EXPECT_EQ(values, (std::vector<double>{1, 2, 3}));
}

TEST_F(ExportJob, ChangesNothingInTheProject) {
  const int reloads = m_test.window().stringTableView.reloadCount;
  exportTo(kExported, ExportScope::AllStrings);
  EXPECT_FALSE(m_test.project().changed());
  EXPECT_EQ(m_test.translation("Add", "fr"), "Ajouter");
  EXPECT_EQ(m_test.translation("Bold", "fr"), std::nullopt);
  EXPECT_EQ(m_test.window().stringTableView.reloadCount, reloads);
}

TEST_F(ExportJob, WritesNothingAndSaysNothingWhenItIsCancelled) {
  m_test.host.files.addFile(kExported, "former");
  for (const double value : {0.0, 2.0}) {
    cancelAt(value);
    exportTo(kExported, ExportScope::AllStrings);
    EXPECT_EQ(m_test.sheet().indicator.doubleValue, value);
    expectEnded();
  }
  EXPECT_EQ(exported(), "former");
  EXPECT_TRUE(m_test.host.files.written().empty());
  EXPECT_TRUE(m_test.host.panels.alerts.empty());
}

TEST_F(ExportJob, WritesItsFileWhenItIsCancelledAfterTheLastString) {
  cancelAt(3.0);
  exportTo(kExported, ExportScope::Untranslated);
  EXPECT_EQ(exported(), "\n--- 2 ---\n/* Style */\nBold\n\n\n");
  expectEnded();
}

TEST_F(ExportJob, ReportsAFileThatCannotBeWrittenAndLeavesTheFormerOneWhole) {
  m_test.host.files.addFile(kExported, "former");
  m_test.host.files.failWriting(kExported, "The disk is full.");
  exportTo(kExported, ExportScope::AllStrings);
  ASSERT_EQ(m_test.host.panels.alerts.size(), 1U);
  const AlertRequest& alert = m_test.host.panels.alerts.front();
  EXPECT_EQ(alert.message, "Error saving export file for language French");
  EXPECT_EQ(alert.informativeText, "");
  EXPECT_EQ(alert.defaultButton, "Ok");
  EXPECT_EQ(m_test.host.systemLog.lines().back(), "Error The disk is full. writing file: file:///out/App_fr.txt");
  EXPECT_EQ(m_test.application.logWindowController()->logText().find("disk"), std::string::npos);
  EXPECT_EQ(exported(), "former");
  expectEnded();
}

TEST_F(ExportJob, ReportsTextThatUtf8CannotHold) {
  m_test.setTranslation("Bold", "fr", "half a pair: \xED\xA0\xBD");
  exportTo(kExported, ExportScope::AllStrings);
  EXPECT_EQ(m_test.alertMessages(), (std::vector<std::string>{"Error saving export file for language French"}));
  EXPECT_EQ(exported(), std::nullopt);
}

TEST_F(ExportJob, DoesNothingWithoutALanguageOrAFile) {
  m_test.project().exportLanguageToFileAllStrings(nullptr, FileUrl(kExported), ExportScope::AllStrings);
  m_test.project().exportLanguageToFileAllStrings(m_test.language("fr"), FileUrl(), ExportScope::AllStrings);
  EXPECT_EQ(m_test.host.threads.jobsRunning(), 0);
  EXPECT_FALSE(m_test.sheetIsUp());
}

}  // namespace
}  // namespace glossmill
