#include <gtest/gtest.h>

#include "support/TestProject.h"

namespace glossmill {
namespace {

constexpr const char* kImported = "/in/App_fr.txt";
constexpr const char* kTranslated =
    "\n--- 1 ---\n/* Menu */\nAdd\nAjouter\n\n--- 2 ---\n/*  */\nBold\nGras\n\n--- 3 ---\n/*  */\nCut\n\n\n";

/// Three strings; French has a former text for Add and for Cut, German has everything.
class ImportJob : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* key : {"Add", "Bold", "Cut"}) m_test.addString(key);
    m_test.addLanguage("de", "\"Add\" = \"1\"\n\"Bold\" = \"2\"\n\"Cut\" = \"3\"\n");
    m_test.addLanguage("fr", "\"Add\" = \"Additionner\"\n\"Cut\" = \"Couper\"\n");
    m_test.open();
  }

  void import(std::string_view bytes) {
    m_test.host.files.addFile(kImported, bytes);
    importFile();
  }
  void importFile() {
    m_test.project().importLanguageFromFile(m_test.language("fr"), FileUrl(kImported));
    m_test.host.runUntilIdle();
  }
  std::vector<std::optional<std::string>> french() {
    return {m_test.translation("Add", "fr"), m_test.translation("Bold", "fr"), m_test.translation("Cut", "fr")};
  }
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

  using Texts = std::vector<std::optional<std::string>>;
  const Texts m_before = {"Additionner", std::nullopt, "Couper"};
  TestProject m_test;
};

TEST_F(ImportJob, AddsReplacesAndLeavesTranslationsByTheirKeys) {
  import(kTranslated);
  EXPECT_EQ(french(), (Texts{"Ajouter", "Gras", "Couper"}));
  EXPECT_EQ(m_test.translation("Add", "de"), "1");
  expectEnded();
}

TEST_F(ImportJob, IgnoresKeysThatTheProjectDoesNotHave) {
  import("--- 1 ---\n\nPaste\nColler\n\n--- 2 ---\n\nbold\ngras\n");
  EXPECT_EQ(french(), m_before);
  EXPECT_EQ(m_test.keys().size(), 3U);
  expectEnded();
}

TEST_F(ImportJob, DoesNotMarkTheProjectAsChanged) {
  int notifications = 0;
  m_test.host.notifications.addObserver(this, kTranslationChangedNotification, [&](const void*) { ++notifications; });
  import(kTranslated);
  EXPECT_FALSE(m_test.project().changed());
  EXPECT_FALSE(m_test.project().canSave());
  EXPECT_EQ(notifications, 0);
  EXPECT_TRUE(m_test.project().closeProject());
  EXPECT_TRUE(m_test.host.panels.alerts.empty());
}

TEST_F(ImportJob, IsWrittenByTheNextSave) {
  import(kTranslated);
  m_test.project().saveProject();
  EXPECT_EQ(m_test.savedFile("fr"),
            "\n/*  */\n\"Add\" = \"Ajouter\"\n\n/*  */\n\"Bold\" = \"Gras\"\n\n/*  */\n\"Cut\" = \"Couper\"\n\n");
}

TEST_F(ImportJob, UpdatesTheStatusOfTheLanguage) {
  EXPECT_EQ(m_test.project().languageStatusString(*m_test.language("fr")), "1 missing");
  import(kTranslated);
  EXPECT_EQ(m_test.project().languageStatusString(*m_test.language("fr")), "Complete");
}

TEST_F(ImportJob, LeavesStringsAloneThatTheFilterHoldsBack) {
  const std::shared_ptr<LocalizeString> add = m_test.record("Add");
  m_test.chooseFilter(1);
  ASSERT_EQ(m_test.keys(), (std::vector<std::string>{"Bold"}));
  import(kTranslated);
  EXPECT_EQ(m_test.translation("Bold", "fr"), "Gras");
  EXPECT_EQ(add->languagesDict().find(LanguageCode("fr")), "Additionner");
  EXPECT_EQ(m_test.sheet().indicator.maxValue, 1.0);
}

TEST_F(ImportJob, CountsEveryStringInTheSheet) {
  std::vector<double> values;
  m_test.onProgress = [&](const HeadlessLongTimeSheet& sheet) {
    if (sheet.indicator.doubleValue > 0) values.push_back(sheet.indicator.doubleValue);
  };
  m_test.host.files.addFile(kImported, "");
  m_test.project().importLanguageFromFile(m_test.language("fr"), FileUrl(kImported));
  EXPECT_TRUE(m_test.sheetIsUp());
  EXPECT_EQ(m_test.sheet().title.stringValue, "Importing strings...");
  EXPECT_FALSE(m_test.sheet().indicator.isIndeterminate);
  EXPECT_EQ(m_test.sheet().indicator.minValue, 0.0);
  EXPECT_EQ(m_test.sheet().indicator.maxValue, 3.0);
  EXPECT_EQ(m_test.window().stringTableView.updatesDepth, 1);
  m_test.host.runUntilIdle();
  EXPECT_EQ(values, (std::vector<double>{1, 2, 3}));
}

TEST_F(ImportJob, ReloadsBothTablesAndTheEditor) {
  const int strings = m_test.window().stringTableView.reloadCount;
  const int languages = m_test.window().languageTableView.reloadCount;
  const int editor = m_test.window().translationTextView.changeCount;
  import(kTranslated);
  EXPECT_EQ(m_test.window().stringTableView.reloadCount, strings + 1);
  EXPECT_EQ(m_test.window().languageTableView.reloadCount, languages + 1);
  EXPECT_EQ(m_test.window().translationTextView.changeCount, editor + 1);
}

TEST_F(ImportJob, IsOneStepThroughTheDoorForEdits) {
  std::vector<EditStep> steps;
  Texts texts;
  m_test.project().edits().addObserver([&](const Edit& edit, const EditStep& step) {
    steps.push_back(step);
    texts.insert(texts.end(), {edit.before, edit.after});
  });
  import(kTranslated);
  m_test.setTranslation("Cut", "fr", "Trancher");
  EXPECT_EQ(texts, (Texts{"Additionner", "Ajouter", std::nullopt, "Gras", "Couper", "Trancher"}));
  ASSERT_EQ(steps.size(), 3U);
  EXPECT_EQ(steps[0].kind, EditKind::Import);
  EXPECT_EQ(steps[0].number, steps[1].number);
  EXPECT_NE(steps[1].number, steps[2].number);
}

TEST_F(ImportJob, ReportsWhatItDid) {
  import(
      "--- 1 ---\n\nAdd\nAjouter\n--- 2 ---\n\nBold\nGras\n--- 3 ---\n\nCut\nCouper\n"
      "--- 4 ---\n\nPaste\nColler\n--- 5 ---\n\nCopy\nCopier\n");
  const ImportReport& report = m_test.project().importReport();
  EXPECT_FALSE(report.unread);
  EXPECT_EQ(report.added, 1U);
  EXPECT_EQ(report.changed, 1U);
  EXPECT_EQ(report.unchanged, 1U);
  EXPECT_EQ(report.unknown, 2U);
}

TEST_F(ImportJob, ReportsWhyTheFileCouldNotBeRead) {
  import(kTranslated);
  m_test.host.files.failOpening(kImported, "Permission denied.");
  importFile();
  ASSERT_TRUE(m_test.project().importReport().unread);
  EXPECT_EQ(m_test.project().importReport().unread->sentence, "Permission denied.");
  EXPECT_EQ(m_test.project().importReport().known(), 0U);
}

TEST_F(ImportJob, StaysSilentAboutAFileThatCannotBeRead) {
  m_test.host.files.addFile(kImported, kTranslated);
  m_test.host.files.failOpening(kImported, "Permission denied.");
  const std::string log(m_test.application.logWindowController()->logText());
  const std::size_t systemLines = m_test.host.systemLog.lines().size();
  importFile();
  EXPECT_EQ(french(), m_before);
  EXPECT_TRUE(m_test.host.panels.alerts.empty());
  EXPECT_EQ(m_test.application.logWindowController()->logText(), log);
  EXPECT_EQ(m_test.host.systemLog.lines().size(), systemLines);
  EXPECT_EQ(m_test.sheet().indicator.doubleValue, 0.0);
  expectEnded();
}

TEST_F(ImportJob, StaysSilentAboutAMissingFile) {
  importFile();
  EXPECT_EQ(french(), m_before);
  EXPECT_TRUE(m_test.host.panels.alerts.empty());
  expectEnded();
}

TEST_F(ImportJob, StaysSilentAboutAFileThatIsNoText) {
  import(std::string(kTranslated) + "\xC3");
  EXPECT_EQ(french(), m_before);
  expectEnded();
}

TEST_F(ImportJob, AppliesNothingOfAFileThatBreaksOffInTheMiddle) {
  m_test.host.files.addFile(kImported, kTranslated);
  m_test.host.files.failReadingAfter(kImported, 40, "The cable was pulled.");
  importFile();
  EXPECT_EQ(french(), m_before);
  expectEnded();
}

TEST_F(ImportJob, TakesNothingFromAnEmptyFileOrOneWithoutDashes) {
  for (const char* bytes : {"", "Add\nAjouter\n"}) {
    import(bytes);
    EXPECT_EQ(french(), m_before);
  }
  EXPECT_TRUE(m_test.host.panels.alerts.empty());
}

TEST_F(ImportJob, MatchesNothingInAFileWithCarriageReturns) {
  import("\r\n--- 1 ---\r\n/*  */\r\nAdd\r\nAjouter\r\n\r\n--- 2 ---\r\n/*  */\r\nBold\r\nGras\r\n\r\n");
  EXPECT_EQ(french(), m_before);
}

TEST_F(ImportJob, TakesTheMarkupOfAnRtfFileAsText) {
  import("{\\rtf1\\ansi\n--- 1 ---\\\n\\\nAdd\\\nAjouter\\\n\\\n}");
  EXPECT_EQ(french(), m_before);
  expectEnded();
}

TEST_F(ImportJob, ReadsUtf16WithAByteOrderMark) {
  std::string bytes = "\xFF\xFE";
  for (const char* at = "--- 1 ---\n\nAdd\nAjout\xE9\n"; *at != 0; ++at) bytes += {*at, '\0'};
  import(bytes);
  EXPECT_EQ(m_test.translation("Add", "fr"), "Ajouté");
}

TEST_F(ImportJob, KeepsWhatWasAppliedBeforeACancel) {
  import("--- 1 ---\n\nAdd\nAjouter\n\n--- 2 ---\n\nBold\nGras\n\n--- 3 ---\n\nCut\nTrancher\n");
  ASSERT_EQ(french(), (Texts{"Ajouter", "Gras", "Trancher"}));
  cancelAt(2.0);
  import("--- 1 ---\n\nAdd\na\n\n--- 2 ---\n\nBold\nb\n\n--- 3 ---\n\nCut\nc\n");
  EXPECT_EQ(french(), (Texts{"a", "b", "Trancher"}));
}

TEST_F(ImportJob, ClosesTheSheetAndLeavesTheBatchOfUpdatesOpenWhenItIsCancelled) {
  const int strings = m_test.window().stringTableView.reloadCount;
  const int languages = m_test.window().languageTableView.reloadCount;
  cancelAt(1.0);
  import(kTranslated);
  EXPECT_EQ(french(), (Texts{"Ajouter", std::nullopt, "Couper"}));
  EXPECT_FALSE(m_test.sheetIsUp());
  EXPECT_FALSE(m_test.project().longJobRunning());
  EXPECT_EQ(m_test.window().stringTableView.updatesDepth, 1);
  EXPECT_EQ(m_test.window().stringTableView.reloadCount, strings);
  EXPECT_EQ(m_test.window().languageTableView.reloadCount, languages);
  EXPECT_TRUE(m_test.host.files.written().empty());
  EXPECT_TRUE(m_test.host.panels.alerts.empty());
}

TEST_F(ImportJob, CountsAnewAfterACancel) {
  EXPECT_EQ(m_test.project().languageStatusString(*m_test.language("fr")), "1 missing");
  cancelAt(2.0);
  import(kTranslated);
  EXPECT_EQ(m_test.project().languageStatusString(*m_test.language("fr")), "Complete");
}

TEST_F(ImportJob, AppliesNothingWhenItIsCancelledAtOnce) {
  cancelAt(0.0);
  import(kTranslated);
  EXPECT_EQ(french(), m_before);
  EXPECT_EQ(m_test.window().stringTableView.updatesDepth, 1);
}

TEST_F(ImportJob, CancelledAfterTheLastStringEndsAsUsual) {
  cancelAt(3.0);
  import(kTranslated);
  EXPECT_EQ(french(), (Texts{"Ajouter", "Gras", "Couper"}));
  expectEnded();
}

TEST_F(ImportJob, OfAnUnreadableFileEndsAsUsualAlsoWhenItIsCancelled) {
  cancelAt(0.0);
  importFile();
  expectEnded();
}

TEST_F(ImportJob, DoesNothingWithoutALanguageOrAFile) {
  m_test.project().importLanguageFromFile(nullptr, FileUrl(kImported));
  m_test.project().importLanguageFromFile(m_test.language("fr"), FileUrl());
  EXPECT_EQ(m_test.host.threads.jobsRunning(), 0);
  EXPECT_FALSE(m_test.sheetIsUp());
  EXPECT_EQ(m_test.window().stringTableView.updatesDepth, 0);
}

}  // namespace
}  // namespace glossmill
