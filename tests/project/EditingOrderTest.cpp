#include <gtest/gtest.h>

#include "support/RecordedProject.h"

namespace glossmill {
namespace {

/// Three keys in two languages, both of which have "Ebb"; German has "Flood" too.
class EditingOrder : public testing::Test {
 protected:
  EditingOrder() {
    harbour.addFile("A.xcodeproj/project.pbxproj", "Sea.m");
    harbour.addFile("Sea.m",
                    "NSLocalizedString(@\"Ebb\", @\"\"); NSLocalizedString(@\"Flood\", @\"\");\n"
                    "NSLocalizedString(@\"Gull\", @\"\");");
    harbour.addFile("de.lproj/Localizable.strings", "\"Ebb\" = \"Ebbe\";\n\"Flood\" = \"Flut\";");
    harbour.addFile("fr.lproj/Localizable.strings", "\"Ebb\" = \"reflux\";");
    harbour.openUnrecorded();
  }
  void chooseFilter(int index) {
    harbour.window().stringFilterPopUp.selectItemAtIndex(index);
    project().changeStringFilter();
  }
  void type(std::string_view text) { project().selectedString()->setTranslationForSelectedString(text, &project()); }
  ProjectWindowController& project() { return *harbour.project; }

  RecordedProject harbour;
  CallRecorder& calls = harbour.calls;
};

// ---- The filter ----

TEST_F(EditingOrder, StoresTheFilterAndThenHoldsBackInABatch) {
  chooseFilter(1);
  const Lines expected = {
      "string table: begin updates",
      "defaults: StringFilterPopUp = 1",
      "defaults: synchronize",
      "state: 1 held back",
      "string rows: 2",
      "string table: end updates",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(EditingOrder, GivesBackBeforeItForgetsWhatItHeldBack) {
  chooseFilter(1);
  calls.clear();
  chooseFilter(0);
  const Lines expected = {
      "string table: begin updates", "defaults: StringFilterPopUp = 0", "defaults: synchronize", "string rows: 3",
      "state: 0 held back",          "string table: end updates",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(EditingOrder, StoresAnyOtherChoiceAndMovesNothing) {
  chooseFilter(7);
  const Lines expected = {
      "string table: begin updates",
      "defaults: StringFilterPopUp = 7",
      "defaults: synchronize",
      "string table: end updates",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(EditingOrder, CountsNoHeldBackStringsForAStatus) {
  chooseFilter(1);
  ASSERT_EQ(project().filteredStringList().size(), 1U);
  const auto italian = project().addLanguage("it");
  ASSERT_TRUE(italian);
  EXPECT_EQ(project().languageStatusString(*italian), "2 missing");
  EXPECT_EQ(project().missingTranslations(*italian), 2U);
  project().stringController().removeAllObjects();
  EXPECT_EQ(project().languageStatusString(*italian), "Complete");
  EXPECT_EQ(project().languageStatus(*italian), Status::Complete);
}

// ---- Edits and selections ----

TEST_F(EditingOrder, MarksTheProjectChangedForAFirstTranslationAndForARemovedOne) {
  project().stringController().setSelectionIndex(2);
  calls.clear();
  type("Möwe");
  type("Möwen");
  type("");
  type("");
  const Lines expected = {
      "notifications: post GlossmillTranslationChanged",
      "project window: edited",
      "notifications: post GlossmillTranslationChanged",
      "project window: edited",
  };
  EXPECT_TRUE(sameLines(calls.linesOf({"notifications", "project window"}), expected));
}

TEST_F(EditingOrder, ShowsTheTranslationOfAnotherLanguageAndPostsNothing) {
  project().languageController().setSelectionIndex(1);
  project().languageSelectionDidChange();
  const Lines expected = {"language rows: 2, selected 1", "editor: show the translation again"};
  EXPECT_TRUE(sameLines(calls.lines(), expected));
  EXPECT_FALSE(project().changed());
}

TEST_F(EditingOrder, StepsBetweenTheEndOfAnEditAndTheNextOne) {
  project().selectNextString();
  project().selectPrevString();
  project().selectNextLanguage();
  project().selectPrevLanguage();
  const Lines steps = {"string rows: 3, selected 1", "string rows: 3, selected 0", "language rows: 2, selected 1",
                       "language rows: 2, selected 0"};
  Lines expected;
  for (const std::string& step : steps) {
    expected = joined({expected, {"project window: no first responder", step, "project window: focus the main field"}});
  }
  EXPECT_TRUE(sameLines(calls.linesOf({"project window", "string rows", "language rows"}), expected));
}

// ---- Another language ----

TEST_F(EditingOrder, ReloadsTheStringTableBeforeItAddsALanguage) {
  ASSERT_TRUE(project().addLanguage("it"));
  const Lines expected = {
      "files: look for /P/Harbour.app/Harbour.app",
      "string table: begin updates",
      "string table: reload",
      "string table: end updates",
      "files: look for /P/Harbour.app/it.lproj",
      "files: create /P/Harbour.app/it.lproj",
      "language rows: 3, selected 0",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(EditingOrder, ShowsTheAlertAndThenWritesTheDiagnosticOfALanguageThatCannotBeAdded) {
  harbour.disk().failCreating("/P/Harbour.app/it.lproj", "No.");
  EXPECT_FALSE(project().addLanguage("it"));
  const Lines expected = {
      "panels: alert \"Error creating file:///P/Harbour.app/it.lproj for language Italian\"",
      "panels: alert answered with the default button",
      "system log: Error No. creating directory file:///P/Harbour.app/it.lproj",
  };
  EXPECT_TRUE(sameLines(calls.linesOf({"panels", "system log", "language rows"}), expected));
}

}  // namespace
}  // namespace glossmill
