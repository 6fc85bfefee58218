#include <gtest/gtest.h>

#include "dialogs/LanguageWindowController.h"
#include "formats/XmlFormats.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

using Codes = std::vector<std::string>;

/// What the project window makes of the choosers' answers.
class ProjectChoosers : public testing::Test {
 protected:
  void SetUp() override {
    m_test.addString("Add");
    m_test.addString("Bold");
    m_test.addLanguage("de");
    m_test.addLanguage("fr", "\"Add\" = \"Ajouter\"\n");
    m_test.open();
  }

  HeadlessLanguageWindow& sheet() { return *m_test.host.interfaces.languageWindow(*m_test.host.sheets.current()); }
  LanguageWindowController& chooser() { return *sheet().owner; }
  Codes offered() {
    Codes codes;
    for (std::size_t row = 0; row < chooser().languageController().arrangedCount(); ++row) {
      codes.push_back(chooser().languageController().arrangedObject(row)->iso639());
    }
    return codes;
  }
  void choose(std::size_t row) {
    chooser().languageController().setSelectionIndex(row);
    chooser().done();
    m_test.host.runUntilIdle();
  }

  TestProject m_test;
};

TEST_F(ProjectChoosers, ShowTheirOwnInterfaceFilesAsSheets) {
  m_test.project().exportStrings();
  EXPECT_EQ(sheet().name, "ExportLanguageWindowController");
  chooser().cancel();
  m_test.project().importStrings();
  EXPECT_EQ(sheet().name, "LanguageWindowController");
  chooser().cancel();
  m_test.project().createBaseLanguage();
  EXPECT_EQ(sheet().name, "LanguageWindowController");
  chooser().cancel();
  EXPECT_EQ(m_test.host.sheets.count(), 0U);
}

TEST_F(ProjectChoosers, AreThreeAndEachIsMadeOnce) {
  using Show = void (ProjectWindowController::*)();
  std::vector<LanguageWindowController*> first;
  std::vector<LanguageWindowController*> second;
  for (auto* made : {&first, &second}) {
    for (const Show show : {&ProjectWindowController::exportStrings, &ProjectWindowController::importStrings,
                            &ProjectWindowController::createBaseLanguage}) {
      (m_test.project().*show)();
      made->push_back(&chooser());
      chooser().cancel();
    }
  }
  EXPECT_EQ(first, second);
  EXPECT_NE(first[0], first[1]);
  EXPECT_NE(first[1], first[2]);
  EXPECT_NE(first[0], first[2]);
}

TEST_F(ProjectChoosers, OfferTheLanguagesOfTheProject) {
  m_test.project().exportStrings();
  EXPECT_EQ(offered(), (Codes{"de", "fr"}));
  EXPECT_EQ(chooser().languageArray(), m_test.project().languagesList());
}

TEST_F(ProjectChoosers, KeepOfferingTheLanguagesOfTheScanThatTheyWereMadeFor) {
  m_test.project().exportStrings();
  chooser().cancel();
  m_test.addLanguage("it");
  m_test.open();
  ASSERT_EQ(m_test.project().languagesList()->size(), 3U);
  m_test.project().exportStrings();
  EXPECT_EQ(offered(), (Codes{"de", "fr"}));
  EXPECT_NE(chooser().languageArray(), m_test.project().languagesList());
  chooser().cancel();
  m_test.project().importStrings();
  EXPECT_EQ(offered(), (Codes{"de", "fr", "it"}));
}

TEST_F(ProjectChoosers, KeepOfferingThemAfterTheProjectWasClosed) {
  m_test.project().importStrings();
  chooser().cancel();
  m_test.project().closeProject();
  m_test.project().importStrings();
  EXPECT_EQ(offered(), (Codes{"de", "fr"}));
}

TEST_F(ProjectChoosers, OfferALanguageThatWasAddedAfterTheyWereMade) {
  m_test.project().exportStrings();
  chooser().cancel();
  const auto italian = std::make_shared<Language>();
  italian->setIso639("it");
  m_test.project().languageController().addObject(italian);
  m_test.project().exportStrings();
  EXPECT_EQ(offered(), (Codes{"de", "fr", "it"}));
}

TEST_F(ProjectChoosers, ProposeAFileNameForTheExport) {
  m_test.host.panels.willCancelSavePanel();
  m_test.project().exportStrings();
  choose(1);
  ASSERT_EQ(m_test.host.panels.savePanels.size(), 1U);
  EXPECT_EQ(m_test.host.panels.savePanels.front().proposedName, "App_fr.txt");
}

std::vector<std::string> titlesOf(const std::vector<FileTypeGroup>& groups) {
  std::vector<std::string> titles;
  for (const FileTypeGroup& group : groups) titles.push_back(group.title + " " + group.types.front());
  return titles;
}

TEST_F(ProjectChoosers, OfferTheFormatsThatHaveAFileType) {
  m_test.project().addExchangeFormats(xmlFormats());
  m_test.host.panels.willCancelSavePanel();
  m_test.project().exportStrings();
  choose(1);
  EXPECT_EQ(titlesOf(m_test.host.panels.savePanels.front().types),
            (std::vector<std::string>{"Text files txt", "PO (gettext) po", "CSV csv", "TSV tsv", "XLIFF 1.2 xliff",
                                      "Xcode Localization Catalog xcloc"}));
  m_test.host.panels.willCancelOpenPanel();
  m_test.project().importStrings();
  choose(1);
  EXPECT_EQ(titlesOf(m_test.host.panels.openPanels.back().moreTypes),
            (std::vector<std::string>{"PO (gettext) po", "CSV csv", "TSV tsv", "XLIFF 1.2 xliff"}));
}

TEST_F(ProjectChoosers, ExportInTheFormatThatTheFilesNameEndsWith) {
  m_test.host.panels.willSaveAs("/x/out.csv");
  m_test.project().exportStrings();
  choose(1);
  EXPECT_EQ(m_test.host.files.bytesOf("/x/out.csv"),
            "table,key,source,comment,fr\r\n,Add,Add,,Ajouter\r\n,Bold,Bold,,\r\n");
}

TEST_F(ProjectChoosers, ExportAllStringsWhileTheCheckBoxIsOff) {
  m_test.host.panels.willSaveAs("/x/out.txt");
  m_test.project().exportStrings();
  choose(1);
  EXPECT_EQ(m_test.host.files.bytesOf("/x/out.txt"),
            "\n--- 1 ---\n/*  */\nAdd\nAjouter\n\n--- 2 ---\n/*  */\nBold\n\n\n");
  EXPECT_EQ(m_test.host.sheets.count(), 0U);
}

TEST_F(ProjectChoosers, ExportUntranslatedStringsWhileTheCheckBoxIsOn) {
  m_test.host.panels.willSaveAs("/x/out.txt");
  m_test.project().exportStrings();
  sheet().checkButton.checked = true;
  choose(1);
  EXPECT_EQ(m_test.host.files.bytesOf("/x/out.txt"), "\n--- 2 ---\n/*  */\nBold\n\n\n");
}

TEST_F(ProjectChoosers, ExportNothingWhenTheSavePanelIsCancelled) {
  m_test.host.panels.willCancelSavePanel();
  m_test.project().exportStrings();
  choose(0);
  EXPECT_TRUE(m_test.host.files.written().empty());
  EXPECT_FALSE(m_test.project().longJobRunning());
  EXPECT_EQ(m_test.host.sheets.count(), 0U);
}

TEST_F(ProjectChoosers, AskForAnImportFileThatIsText) {
  m_test.host.panels.willCancelOpenPanel();
  m_test.project().importStrings();
  choose(1);
  const OpenPanelRequest& request = m_test.host.panels.openPanels.back();
  EXPECT_EQ(request.title, "Select file");
  EXPECT_EQ(request.prompt, "");
  EXPECT_EQ(request.fileTypes, (std::vector<std::string>{"txt", "rtf", "TXT", "RTF"}));
  EXPECT_FALSE(request.canCreateDirectories);
  EXPECT_FALSE(request.canChooseDirectories);
  EXPECT_FALSE(request.allowsMultipleSelection);
  EXPECT_TRUE(request.canChooseFiles);
  EXPECT_TRUE(request.directory.empty());
}

TEST_F(ProjectChoosers, ImportTheChosenFile) {
  m_test.host.files.addFile("/x/in.txt", "--- 1 ---\n\nBold\nGras\n");
  m_test.host.panels.willChoose("/x/in.txt");
  m_test.project().importStrings();
  choose(1);
  EXPECT_EQ(m_test.translation("Bold", "fr"), "Gras");
  EXPECT_EQ(m_test.translation("Bold", "de"), std::nullopt);
}

TEST_F(ProjectChoosers, ImportNothingWhenTheOpenPanelIsCancelled) {
  m_test.host.panels.willCancelOpenPanel();
  m_test.project().importStrings();
  choose(1);
  EXPECT_FALSE(m_test.project().longJobRunning());
  EXPECT_EQ(m_test.window().stringTableView.updatesDepth, 0);
  EXPECT_EQ(m_test.host.sheets.count(), 0U);
}

TEST_F(ProjectChoosers, FillTheChosenLanguageFromTheKeys) {
  m_test.project().createBaseLanguage();
  choose(1);
  EXPECT_EQ(m_test.translation("Add", "fr"), "Ajouter");
  EXPECT_EQ(m_test.translation("Bold", "fr"), "Bold");
  EXPECT_EQ(m_test.translation("Bold", "de"), std::nullopt);
  EXPECT_TRUE(m_test.project().changed());
}

TEST_F(ProjectChoosers, DoNothingWhenTheyAreCancelled) {
  using Show = void (ProjectWindowController::*)();
  for (const Show show : {&ProjectWindowController::exportStrings, &ProjectWindowController::importStrings,
                          &ProjectWindowController::createBaseLanguage}) {
    (m_test.project().*show)();
    chooser().languageController().setSelectionIndex(0);
    chooser().cancel();
    EXPECT_EQ(m_test.host.threads.jobsRunning(), 0);
    EXPECT_EQ(m_test.host.sheets.count(), 0U);
  }
  EXPECT_TRUE(m_test.host.panels.savePanels.empty());
  EXPECT_EQ(m_test.host.panels.openPanels.size(), 1U);
}

TEST_F(ProjectChoosers, DoNothingWithoutALanguage) {
  m_test.project().exportStrings();
  LanguageWindowController& exporting = chooser();
  exporting.cancel();
  m_test.project().languageWindowControllerDidSelectAllStrings(exporting, nullptr, ExportScope::AllStrings);
  EXPECT_TRUE(m_test.host.panels.savePanels.empty());
}

TEST_F(ProjectChoosers, AreToldApartByTheirIdentity) {
  LanguageWindowController stranger(m_test.host.parts(), "LanguageWindowController", m_test.project().languagesList());
  m_test.project().languageWindowControllerDidSelectAllStrings(stranger, m_test.language("fr"),
                                                               ExportScope::AllStrings);
  EXPECT_TRUE(m_test.host.panels.savePanels.empty());
  EXPECT_EQ(m_test.host.panels.openPanels.size(), 1U);
  EXPECT_EQ(m_test.host.threads.jobsRunning(), 0);
}

TEST(ProjectChooserTexts, AreInTheLanguageOfTheUser) {
  TestProject test({{"%@_%@.txt", "%@ (%@).txt"}, {"Select file", "Datei wählen"}});
  test.addLanguage("fr");
  test.open();
  test.host.panels.willCancelSavePanel();
  test.host.panels.willCancelOpenPanel();
  for (const auto show : {&ProjectWindowController::exportStrings, &ProjectWindowController::importStrings}) {
    (test.project().*show)();
    LanguageWindowController& chooser = *test.host.interfaces.languageWindow(*test.host.sheets.current())->owner;
    chooser.languageController().setSelectionIndex(0);
    chooser.done();
  }
  EXPECT_EQ(test.host.panels.savePanels.front().proposedName, "App (fr).txt");
  EXPECT_EQ(test.host.panels.openPanels.back().title, "Datei wählen");
}

}  // namespace
}  // namespace glossmill
