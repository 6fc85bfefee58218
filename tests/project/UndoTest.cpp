#include <gtest/gtest.h>

#include "support/RecordedProject.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

/// Three strings; German has two of them, French has none.
class Undo : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* key : {"Ebb", "Flood", "Gull"}) test.addString(key);
    test.addLanguage("de", "\"Ebb\" = \"Ebbe\";\n\"Flood\" = \"Flut\";\n");
    test.addLanguage("fr");
    test.open();
  }
  ProjectWindowController& project() { return test.project(); }
  void typeInto(std::string_view key, std::string_view code, std::string_view text) {
    test.select(key, code);
    test.type(text);
  }
  void import(std::string_view text) {
    test.host.files.addFile("/in.txt", text);
    project().importLanguageFromFile(test.language("de"), FileUrl("/in.txt"));
    test.host.runUntilIdle();
  }
  void fill(std::string_view code) {
    project().languageFromBaseLanguage(test.language(code));
    test.host.runUntilIdle();
  }
  std::size_t missing(std::string_view code) { return project().missingTranslations(*test.language(code)); }

  TestProject test;
};

TEST_F(Undo, GoesBackAcrossRowsAndLanguagesAndShowsWhatItChanged) {
  typeInto("Ebb", "de", "Niedrigwasser");
  typeInto("Gull", "fr", "Mouette");
  test.select("Flood", "de");
  project().undo();
  EXPECT_EQ(test.translation("Gull", "fr"), std::nullopt);
  EXPECT_EQ(project().selectedString()->name(), "Gull");
  EXPECT_EQ(project().selectedLanguage()->iso639(), "fr");
  project().undo();
  EXPECT_EQ(test.translation("Ebb", "de"), "Ebbe");
  EXPECT_EQ(project().selectedString()->name(), "Ebb");
  EXPECT_EQ(project().selectedLanguage()->iso639(), "de");
  EXPECT_FALSE(project().canUndo());
  project().redo();
  project().redo();
  EXPECT_EQ(test.translation("Ebb", "de"), "Niedrigwasser");
  EXPECT_EQ(test.translation("Gull", "fr"), "Mouette");
  EXPECT_FALSE(project().canRedo());
}

TEST_F(Undo, IsHarmlessWhenThereIsNothingToTakeBack) {
  project().undo();
  project().redo();
  EXPECT_EQ(test.translation("Ebb", "de"), "Ebbe");
}

TEST_F(Undo, TakesWhatWasTypedDuringOneVisitAsOneStep) {
  test.select("Gull", "de");
  for (const char* text : {"M", "Mö", "Möwe"}) test.type(text);
  test.select("Ebb", "de");
  test.select("Gull", "de");
  test.type("Möwen");
  project().undo();
  EXPECT_EQ(test.translation("Gull", "de"), "Möwe");
  project().undo();
  EXPECT_EQ(test.translation("Gull", "de"), std::nullopt);
}

TEST_F(Undo, TakesAJobBackAsAWhole) {
  fill("fr");
  ASSERT_EQ(missing("fr"), 0U);
  ASSERT_NE(project().undoStep(), nullptr);
  EXPECT_EQ(project().undoStep()->kind, EditKind::Fill);
  project().undo();
  EXPECT_EQ(missing("fr"), 3U);
  EXPECT_FALSE(project().canUndo());
  project().redo();
  EXPECT_EQ(test.translation("Gull", "fr"), "Gull");
}

TEST_F(Undo, StaysPossibleAfterASave) {
  typeInto("Gull", "de", "Möwe");
  project().saveProject();
  project().undo();
  EXPECT_EQ(test.translation("Gull", "de"), std::nullopt);
  EXPECT_TRUE(project().changed());
}

TEST_F(Undo, RaisesChangedForAnEntryThatComesOrGoesAndNeverLowersIt) {
  typeInto("Ebb", "de", "Niedrigwasser");
  project().undo();
  EXPECT_FALSE(project().changed());
  typeInto("Gull", "de", "Möwe");
  project().undo();
  EXPECT_TRUE(project().changed());
}

TEST_F(Undo, OfAnImportRaisesChangedThoughTheImportDidNot) {
  import("--- 1 ---\n/*  */\nGull\nMöwe\n\n");
  ASSERT_TRUE(project().canUndo());
  EXPECT_FALSE(project().changed());
  project().undo();
  EXPECT_TRUE(project().changed());
}

TEST_F(Undo, ChangesStringsThatTheFilterHoldsBackAndLeavesThemThere) {
  typeInto("Ebb", "fr", "reflux");
  test.chooseFilter(1);
  ASSERT_EQ(project().filteredStringList().size(), 1U);
  ASSERT_EQ(missing("fr"), 2U);
  const std::shared_ptr<LocalizeString> ebb = project().filteredStringList().front();
  project().undo();
  EXPECT_FALSE(ebb->languagesDict().contains(LanguageCode("fr")));
  EXPECT_EQ(project().filteredStringList().size(), 1U);
  EXPECT_EQ(test.keys(), (std::vector<std::string>{"Flood", "Gull"}));
  EXPECT_EQ(missing("fr"), 2U);
}

TEST_F(Undo, IsOverWhenTheProjectIsClosed) {
  typeInto("Ebb", "de", "Niedrigwasser");
  typeInto("Flood", "de", "Hochwasser");
  project().undo();
  ASSERT_TRUE(project().canUndo() && project().canRedo());
  ASSERT_TRUE(project().closeProject());
  EXPECT_FALSE(project().canUndo());
  EXPECT_FALSE(project().canRedo());
}

TEST_F(Undo, WaitsWhileAJobRuns) {
  typeInto("Ebb", "de", "Niedrigwasser");
  bool couldUndo = true;
  test.onProgress = [&](const HeadlessLongTimeSheet&) { couldUndo = project().canUndo(); };
  fill("fr");
  EXPECT_FALSE(couldUndo);
  EXPECT_TRUE(project().canUndo());
}

TEST(UndoOrder, ChangesInOneBatchThenSelectsAndShowsAgain) {
  RecordedProject harbour;
  harbour.addFile("A.xcodeproj/project.pbxproj", "Sea.m");
  harbour.addFile("Sea.m", "NSLocalizedString(@\"Ebb\", @\"\"); NSLocalizedString(@\"Flood\", @\"\");");
  harbour.addFile("de.lproj/Localizable.strings");
  harbour.openUnrecorded();
  harbour.project->selectedString()->setTranslationForSelectedString("Ebbe", harbour.project.get());
  harbour.project->stringController().setSelectionIndex(1);
  harbour.calls.clear();
  harbour.project->undo();
  const Lines expected = {
      "string table: begin updates", "string rows: 2, selected 0", "language table: reload",
      "string table: reload",        "string table: end updates",  "editor: show the translation again",
  };
  EXPECT_TRUE(sameLines(harbour.calls.lines(), expected));
}

}  // namespace
}  // namespace glossmill
