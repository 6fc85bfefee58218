#include <gtest/gtest.h>

#include "support/TestProject.h"

namespace glossmill {
namespace {

/// Three strings; German has two of them, French has none. The project keeps a journal.
class UnsavedWorkTest : public testing::Test {
 protected:
  using Fit = RecoverableEdit::Fit;

  void SetUp() override {
    for (const char* key : {"Ebb", "Flood", "Gull"}) test.addString(key);
    test.addLanguage("de", "\"Ebb\" = \"Ebbe\";\n\"Flood\" = \"Flut\";\n");
    test.addLanguage("fr");
    ProjectOptions options;
    options.keepsJournal = true;
    test.application.setProjectOptions(options);
    test.open();
  }
  ProjectWindowController& project() { return test.project(); }
  void typeInto(std::string_view key, std::string_view code, std::string_view text) {
    test.select(key, code);
    test.type(text);
  }
  /// Ends the session without a question and without a save, as a crash does, and opens the project again.
  void openAgain() {
    project().flushEdits();
    project().clearProject();
    test.open();
  }
  /// "Ebb de: Ebbe" and how it fits, for each edit that was left.
  std::vector<std::string> left() {
    std::vector<std::string> lines;
    for (const RecoverableEdit& one : project().recoverableEdits()) {
      lines.push_back(one.edit.key + " " + one.edit.language + ": " + one.edit.after.value_or("none") +
                      (one.fit == Fit::Applies   ? ""
                       : one.fit == Fit::Changed ? ", changed"
                                                 : ", gone"));
    }
    return lines;
  }

  using LeftLines = std::vector<std::string>;
  TestProject test;
};

TEST_F(UnsavedWorkTest, KnowsOfReplacedAndImportedTextsThatDoNotCountAsChanged) {
  EXPECT_FALSE(project().canSaveAll());
  typeInto("Ebb", "de", "Niedrigwasser");
  EXPECT_FALSE(project().canSave());
  EXPECT_TRUE(project().hasUnsavedEdits());
  EXPECT_TRUE(project().canSaveAll());
  project().saveProject();
  EXPECT_FALSE(project().canSaveAll());
  test.setTranslation("Gull", "fr", "Mouette");
  EXPECT_FALSE(project().changed());
  EXPECT_TRUE(project().canSaveAll());
}

TEST_F(UnsavedWorkTest, IsNoneWhenEverythingIsAsItWas) {
  typeInto("Ebb", "de", "Niedrigwasser");
  project().undo();
  EXPECT_FALSE(project().hasUnsavedEdits());
}

TEST_F(UnsavedWorkTest, IsThereAgainAfterACrash) {
  typeInto("Ebb", "de", "Niedrigwasser");
  typeInto("Flood", "de", "");
  typeInto("Gull", "fr", "Mouette");
  openAgain();
  EXPECT_EQ(left(), (LeftLines{"Ebb de: Niedrigwasser", "Flood de: none", "Gull fr: Mouette"}));
  EXPECT_FALSE(project().hasUnsavedEdits());
  EXPECT_EQ(test.translation("Ebb", "de"), "Ebbe");
}

TEST_F(UnsavedWorkTest, IsAppliedAsOneStepAndUnsavedAgain) {
  typeInto("Ebb", "de", "Niedrigwasser");
  typeInto("Gull", "fr", "Mouette");
  openAgain();
  project().recover(project().recoverableEdits());
  EXPECT_EQ(test.translation("Ebb", "de"), "Niedrigwasser");
  EXPECT_EQ(test.translation("Gull", "fr"), "Mouette");
  EXPECT_TRUE(project().changed());
  EXPECT_TRUE(project().hasUnsavedEdits());
  EXPECT_EQ(left(), LeftLines());
  openAgain();
  EXPECT_EQ(left(), (LeftLines{"Ebb de: Niedrigwasser", "Gull fr: Mouette"}));
  project().recover(project().recoverableEdits());
  project().undo();
  EXPECT_EQ(test.translation("Ebb", "de"), "Ebbe");
  EXPECT_EQ(test.translation("Gull", "fr"), std::nullopt);
}

TEST_F(UnsavedWorkTest, IsRetiredByASaveForGood) {
  typeInto("Ebb", "de", "Niedrigwasser");
  openAgain();
  project().recover(project().recoverableEdits());
  project().saveProject();
  openAgain();
  EXPECT_EQ(left(), LeftLines());
  EXPECT_EQ(test.translation("Ebb", "de"), "Niedrigwasser");
}

/// The program may end between the file and the journal.
TEST_F(UnsavedWorkTest, IsNoneWhenTheFileHoldsItAlready) {
  typeInto("Gull", "fr", "Mouette");
  project().flushEdits();
  project().clearProject();
  test.addLanguage("fr", "\"Gull\" = \"Mouette\";\n");
  test.open();
  EXPECT_EQ(left(), LeftLines());
}

TEST_F(UnsavedWorkTest, IsNotRetiredByALanguageThatCouldNotBeWritten) {
  test.host.files.failWriting(stringsFileOf("fr"), "The disk is full.");
  typeInto("Ebb", "de", "Niedrigwasser");
  typeInto("Gull", "fr", "Mouette");
  EXPECT_FALSE(project().saveProject());
  EXPECT_FALSE(project().changed());
  EXPECT_TRUE(project().hasUnsavedEdits());
  openAgain();
  EXPECT_EQ(left(), LeftLines{"Gull fr: Mouette"});
}

TEST_F(UnsavedWorkTest, IsNotRetiredByARefusedSave) {
  typeInto("Ebb", "de", "Niedrigwasser");
  test.addLanguage("de", "\"Ebb\" = \"by somebody else\";\n");
  test.host.panels.willAnswer(AlertAnswer::Default);
  EXPECT_FALSE(project().saveProject());
  EXPECT_TRUE(project().hasUnsavedEdits());
}

/// A save writes what the table holds, and nothing that the filter holds back.
TEST_F(UnsavedWorkTest, IsNotRetiredByASaveThatLeftTheStringOut) {
  typeInto("Ebb", "fr", "reflux");
  test.chooseFilter(1);
  ASSERT_EQ(project().filteredStringList().size(), 1U);
  project().saveProject();
  EXPECT_TRUE(project().hasUnsavedEdits());
  openAgain();
  EXPECT_EQ(left(), LeftLines{"Ebb fr: reflux"});
}

TEST_F(UnsavedWorkTest, IsInConflictWithATextThatHasChangedSince) {
  typeInto("Ebb", "de", "Niedrigwasser");
  project().flushEdits();
  project().clearProject();
  test.addLanguage("de", "\"Ebb\" = \"by somebody else\";\n");
  test.open();
  EXPECT_EQ(left(), LeftLines{"Ebb de: Niedrigwasser, changed"});
  EXPECT_EQ(test.translation("Ebb", "de"), "by somebody else");
}

TEST_F(UnsavedWorkTest, IsGoneWhenTheUserChoosesDelete) {
  typeInto("Gull", "fr", "Mouette");
  test.host.panels.willAnswer(AlertAnswer::Alternate);
  ASSERT_TRUE(project().closeProject());
  test.open();
  EXPECT_EQ(left(), LeftLines());
}

TEST_F(UnsavedWorkTest, StaysWhenAProjectIsClosedThatNobodyAskedAbout) {
  typeInto("Ebb", "de", "Niedrigwasser");
  ASSERT_TRUE(project().closeProject());
  EXPECT_TRUE(test.alertMessages().empty());
  test.open();
  EXPECT_EQ(left(), LeftLines{"Ebb de: Niedrigwasser"});
}

TEST_F(UnsavedWorkTest, IsGoneWhenItIsDiscarded) {
  typeInto("Ebb", "de", "Niedrigwasser");
  openAgain();
  EXPECT_TRUE(project().discardRecoverableEdits());
  EXPECT_EQ(left(), LeftLines());
  openAgain();
  EXPECT_EQ(left(), LeftLines());
}

TEST_F(UnsavedWorkTest, OfStringsThatTheFilterHoldsBackIsAppliedToThem) {
  typeInto("Ebb", "de", "Niedrigwasser");
  openAgain();
  typeInto("Ebb", "fr", "reflux");
  test.chooseFilter(1);
  project().recover(project().recoverableEdits());
  const std::shared_ptr<LocalizeString> ebb = project().filteredStringList().at(0);
  EXPECT_EQ(ebb->languagesDict().find(LanguageCode("de")), "Niedrigwasser");
  EXPECT_EQ(project().missingTranslations(*test.language("de")), 1U);
}

TEST_F(UnsavedWorkTest, LeavesTheJournalAloneWithoutTheOption) {
  typeInto("Ebb", "de", "Niedrigwasser");
  project().flushEdits();
  project().clearProject();
  test.application.setProjectOptions({});
  test.open();
  EXPECT_EQ(left(), LeftLines());
  typeInto("Ebb", "de", "Niedrig");
  EXPECT_FALSE(project().hasUnsavedEdits());
  project().takeKeptEdits();
  EXPECT_EQ(left(), LeftLines{"Ebb de: Niedrigwasser, changed"});
}

TEST_F(UnsavedWorkTest, WithoutAJournalIsRetiredByTheSaveOnly) {
  typeInto("Ebb", "de", "Niedrigwasser");
  project().flushEdits();
  project().clearProject();
  test.application.setProjectOptions({});
  test.open();
  project().takeKeptEdits();
  project().recover(project().recoverableEdits());
  project().clearProject();
  test.open();
  project().takeKeptEdits();
  EXPECT_EQ(left(), LeftLines{"Ebb de: Niedrigwasser"});
  project().recover(project().recoverableEdits());
  project().saveProject();
  project().clearProject();
  test.open();
  project().takeKeptEdits();
  EXPECT_EQ(left(), LeftLines());
}

}  // namespace
}  // namespace glossmill
