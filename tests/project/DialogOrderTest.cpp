#include <gtest/gtest.h>

#include "dialogs/LanguageWindowController.h"
#include "dialogs/SelectLanguageWindowController.h"
#include "support/RecordedProject.h"

namespace glossmill {
namespace {

/// One key in German, in a directory whose name has an extension.
class DialogOrder : public testing::Test {
 protected:
  DialogOrder() {
    harbour.addFile("A.xcodeproj/project.pbxproj", "Sea.m");
    harbour.addFile("Sea.m", R"(NSLocalizedString(@"Ebb", @"tide"))");
    harbour.addFile("de.lproj/Localizable.strings", "");
    harbour.openUnrecorded();
  }
  /// The chooser that is up, with its first language selected.
  LanguageWindowController& chooser() {
    TestHost& host = harbour.recording.host;
    LanguageWindowController& shown = *host.interfaces.languageWindow(*host.sheets.current())->owner;
    shown.languageController().setSelectionIndex(0);
    return shown;
  }
  SelectLanguageWindowController& addLanguageSheet() {
    return *harbour.recording.host.interfaces.selectLanguageWindow()->owner;
  }
  /// The calls but for those of the job that was begun.
  Lines linesOfDialogs() {
    return calls.linesOf({"interface files", "chooser", "sheets", "panels", "Language", "Export"});
  }
  ProjectWindowController& project() { return *harbour.project; }

  RecordedProject harbour;
  CallRecorder& calls = harbour.calls;
};

TEST_F(DialogOrder, AsksForAnExportFileWhenTheChooserIsGone) {
  harbour.panels().willSaveAs("/P/out.txt");
  project().exportStrings();
  chooser().done();
  const Lines expected = {
      "interface files: load ExportLanguageWindowController",
      "chooser table: set the double action",
      "sheets: begin ExportLanguageWindowController",
      "ExportLanguageWindowController: order out",
      "sheets: end ExportLanguageWindowController",
      "sheets: did end ExportLanguageWindowController",
      "panels: save panel \"Harbour.app_de.txt\"",
      "panels: save as /P/out.txt",
      "sheets: begin long-time sheet",
  };
  EXPECT_TRUE(sameLines(linesOfDialogs(), expected));
  harbour.runUntilIdle();
  EXPECT_TRUE(harbour.disk().exists("/P/out.txt"));
}

TEST_F(DialogOrder, AsksForAnImportFileWhenTheChooserIsGone) {
  harbour.panels().willChoose("/P/in.txt");
  project().importStrings();
  chooser().done();
  const Lines expected = {
      "interface files: load LanguageWindowController",
      "chooser table: set the double action",
      "sheets: begin LanguageWindowController",
      "LanguageWindowController: order out",
      "sheets: end LanguageWindowController",
      "sheets: did end LanguageWindowController",
      "panels: open panel \"Select file\"",
      "sheets: begin long-time sheet",
  };
  EXPECT_TRUE(sameLines(linesOfDialogs(), expected));
  harbour.runUntilIdle();
}

TEST_F(DialogOrder, FillsWhenTheChooserIsGone) {
  project().createBaseLanguage();
  chooser().done();
  const Lines expected = {
      "interface files: load LanguageWindowController",
      "chooser table: set the double action",
      "sheets: begin LanguageWindowController",
      "LanguageWindowController: order out",
      "sheets: end LanguageWindowController",
      "sheets: did end LanguageWindowController",
      "sheets: begin long-time sheet",
  };
  EXPECT_TRUE(sameLines(linesOfDialogs(), expected));
  harbour.runUntilIdle();
}

TEST_F(DialogOrder, DoesNothingMoreWhenAChooserOrASavePanelIsCancelled) {
  project().exportStrings();
  chooser().cancel();
  harbour.panels().willCancelSavePanel();
  project().exportStrings();
  chooser().done();
  const Lines once = {
      "sheets: begin ExportLanguageWindowController",
      "ExportLanguageWindowController: order out",
      "sheets: end ExportLanguageWindowController",
      "sheets: did end ExportLanguageWindowController",
  };
  const Lines expected = joined({
      {"interface files: load ExportLanguageWindowController", "chooser table: set the double action"},
      once,
      once,
      {"panels: save panel \"Harbour.app_de.txt\"", "panels: save panel cancelled"},
  });
  EXPECT_TRUE(sameLines(linesOfDialogs(), expected));
}

TEST_F(DialogOrder, ListsTheLanguagesToAddBeforeTheirSheetIsUp) {
  project().addLanguage();
  calls.clear();
  addLanguageSheet().cancel();
  project().addLanguage();
  const Lines expected = {
      "add-language sheet: order out",
      "sheets: end add-language sheet",
      "sheets: did end add-language sheet",
      "interface files: load SelectLanguageWindowController",
      "ISO table: set the double action",
      "code lengths: select item 0",
      "ISO table: begin updates",
      "ISO table: end updates",
      "defaults: SelectLangaugeFilterButtonState = 0",
      "defaults: synchronize",
      "add-language sheet: focus the main field",
      "sheets: begin add-language sheet",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(DialogOrder, AddsALanguageWhenItsSheetIsGone) {
  project().addLanguage();
  calls.clear();
  addLanguageSheet().done();
  const Lines expected = {
      "add-language sheet: order out",      "sheets: end add-language sheet",
      "sheets: did end add-language sheet", "files: look for /P/Harbour.app/Harbour.app",
      "string table: begin updates",
  };
  Lines lines = calls.lines();
  lines.resize(expected.size());
  EXPECT_TRUE(sameLines(lines, expected));
  EXPECT_EQ(project().languagesList()->size(), 2U);
}

}  // namespace
}  // namespace glossmill
