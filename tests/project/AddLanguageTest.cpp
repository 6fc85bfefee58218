#include <gtest/gtest.h>

#include "dialogs/SelectLanguageWindowController.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

using Codes = std::vector<std::string>;
using Paths = std::vector<std::string>;

/// Adding a language to a project that has German.
class AddLanguage : public testing::Test {
 protected:
  void SetUp() override {
    m_test.addString("Open");
    m_test.addLanguage("de", "\"Open\" = \"Öffnen\"\n");
    m_test.open();
  }

  HeadlessSelectLanguageWindow& sheet() { return *m_test.host.interfaces.selectLanguageWindow(); }
  /// Chooses a language in the dialog, which shows the codes of this pop-up item.
  void add(std::string_view code, int codeLengths = 2) {
    m_test.project().addLanguage();
    sheet().isoPopUpButton.selectItemAtIndex(codeLengths);
    SelectLanguageWindowController& dialog = *sheet().owner;
    dialog.changeFilter();
    ArrayController<Language>& languages = dialog.languageController();
    for (std::size_t row = 0; row < languages.arrangedCount(); ++row) {
      if (languages.arrangedObject(row)->iso639() == code) languages.setSelectionIndex(row);
    }
    dialog.done();
  }
  Codes codes() {
    Codes codes;
    for (const auto& language : *m_test.project().languagesList()) codes.push_back(language->iso639());
    return codes;
  }

  TestProject m_test;
};

TEST_F(AddLanguage, PutsTheDirectoryIntoTheProjectDirectory) {
  add("fr");
  EXPECT_EQ(codes(), (Codes{"de", "fr"}));
  EXPECT_EQ(m_test.host.files.kindOf(FileUrl("/x/App/fr.lproj")), EntryKind::Directory);
  EXPECT_EQ(m_test.language("fr")->localizedStringUrl().path(), "/x/App/fr.lproj");
  EXPECT_EQ(m_test.language("fr")->urlDepth(), 0);
  EXPECT_EQ(m_test.language("fr")->description(), "French");
  EXPECT_TRUE(m_test.host.panels.alerts.empty());
}

TEST_F(AddLanguage, PutsTheDirectoryIntoAnEntryOfTheProjectsNameWhereThereIsOne) {
  m_test.host.files.addDirectory("/x/App/App");
  add("fr");
  EXPECT_EQ(m_test.language("fr")->localizedStringUrl().path(), "/x/App/App/fr.lproj");
  EXPECT_TRUE(m_test.host.files.exists("/x/App/App/fr.lproj"));
  EXPECT_FALSE(m_test.host.files.exists("/x/App/fr.lproj"));
}

TEST_F(AddLanguage, TakesAnExistingDirectoryWithoutAWord) {
  m_test.host.files.addDirectory("/x/App/fr.lproj");
  add("fr");
  EXPECT_EQ(codes(), (Codes{"de", "fr"}));
  EXPECT_TRUE(m_test.host.files.created().empty());
  EXPECT_TRUE(m_test.host.panels.alerts.empty());
}

TEST_F(AddLanguage, DoesNotRefuseALanguageThatTheProjectHas) {
  add("de");
  EXPECT_EQ(codes(), (Codes{"de", "de"}));
  EXPECT_TRUE(m_test.project().languagesList()->back()->inUse());
  EXPECT_TRUE(m_test.host.files.created().empty());
}

TEST_F(AddLanguage, NamesTheDirectoryByTheThreeLetterCodeThatWasChosen) {
  add("deu");
  EXPECT_EQ(codes(), (Codes{"de", "deu"}));
  EXPECT_EQ(m_test.host.files.created(), (Paths{"/x/App/deu.lproj"}));
  EXPECT_TRUE(m_test.language("deu")->isIso639_2());
}

TEST_F(AddLanguage, LeavesTheDialogsEntryAsItWas) {
  m_test.project().addLanguage();
  SelectLanguageWindowController& dialog = *sheet().owner;
  const std::shared_ptr<Language> entry = dialog.languageController().selectedObject();
  ASSERT_TRUE(entry);
  dialog.done();
  EXPECT_TRUE(entry->localizedStringUrl().empty());
  EXPECT_NE(m_test.project().languagesList()->back(), entry);
  EXPECT_EQ(m_test.project().languagesList()->back()->iso639(), entry->iso639());
}

TEST_F(AddLanguage, NeitherMarksTheProjectAsChangedNorTouchesAString) {
  add("fr");
  EXPECT_FALSE(m_test.project().changed());
  EXPECT_EQ(m_test.record("Open")->languagesDict().count(), 1U);
  EXPECT_EQ(m_test.record("Open")->statusString(m_test.project().statusTexts(), &m_test.project()), "1 missing");
}

TEST_F(AddLanguage, ReloadsTheStringTableInABatchOfItsOwn) {
  const int before = m_test.window().stringTableView.reloadCount;
  add("fr");
  EXPECT_EQ(m_test.window().stringTableView.reloadCount, before + 1);
  EXPECT_EQ(m_test.window().stringTableView.updatesDepth, 0);
}

TEST_F(AddLanguage, WritesNoStringsFileUntilTheFirstSave) {
  add("fr");
  EXPECT_EQ(m_test.savedFile("fr"), std::nullopt);
  m_test.project().saveProject();
  EXPECT_EQ(m_test.savedFile("fr"), "\n");
  ASSERT_EQ(m_test.host.panels.alerts.size(), 1U);
  EXPECT_TRUE(m_test.alertMessages().front().starts_with("Created new Localizable.strings for language French at:"));
}

TEST_F(AddLanguage, ReportsADirectoryThatCannotBeCreated) {
  m_test.host.files.failCreating("/x/App/fr.lproj", "The disk is read-only.");
  add("fr");
  EXPECT_EQ(codes(), (Codes{"de"}));
  ASSERT_EQ(m_test.host.panels.alerts.size(), 1U);
  const AlertRequest& alert = m_test.host.panels.alerts.front();
  EXPECT_EQ(alert.message, "Error creating file:///x/App/fr.lproj for language French");
  EXPECT_EQ(alert.informativeText, "");
  EXPECT_EQ(alert.defaultButton, "Ok");
  EXPECT_EQ(m_test.host.systemLog.lines().back(),
            "Error The disk is read-only. creating directory file:///x/App/fr.lproj");
}

TEST_F(AddLanguage, MakesNoDirectoriesAboveTheNewOne) {
  m_test.host.files.remove(TestProject::kDirectory);
  add("fr");
  EXPECT_EQ(codes(), (Codes{"de"}));
  EXPECT_FALSE(m_test.host.files.exists(TestProject::kDirectory));
  EXPECT_EQ(m_test.alertMessages(), (Codes{"Error creating file:///x/App/fr.lproj for language French"}));
}

TEST_F(AddLanguage, FailsWhereAFileHasTheProjectsName) {
  m_test.host.files.addFile("/x/App/App", "");
  add("fr");
  EXPECT_EQ(codes(), (Codes{"de"}));
  EXPECT_EQ(m_test.alertMessages(), (Codes{"Error creating file:///x/App/App/fr.lproj for language French"}));
}

TEST_F(AddLanguage, LeavesLanguagesAndDiskUntouchedWhenItIsCancelled) {
  m_test.project().addLanguage();
  sheet().owner->cancel();
  EXPECT_EQ(codes(), (Codes{"de"}));
  EXPECT_TRUE(m_test.host.files.created().empty());
  EXPECT_EQ(m_test.host.sheets.count(), 0U);
  EXPECT_EQ(m_test.host.defaults.integerForKey("SelectLangaugeFilterButtonState"), 0);
}

TEST_F(AddLanguage, MakesAFreshDialogThatSeesTheCurrentLanguages) {
  m_test.host.defaults.setInteger("SelectLangaugeFilterButtonState", 0);
  add("fr", 0);
  m_test.project().addLanguage();
  for (const auto& language : *sheet().owner->languageController().content()) {
    const bool expected = language->iso639() == "de" || language->iso639() == "fr";
    EXPECT_EQ(language->inUse(), expected) << language->iso639();
  }
}

TEST_F(AddLanguage, RemembersTheKindOfCodesForTheNextDialog) {
  add("deu", 1);
  m_test.project().addLanguage();
  EXPECT_EQ(sheet().isoPopUpButton.selectedIndex, 1);
}

TEST_F(AddLanguage, OffersTheWholeTable) {
  m_test.project().addLanguage();
  sheet().isoPopUpButton.selectItemAtIndex(2);
  sheet().owner->changeFilter();
  EXPECT_EQ(sheet().owner->languageController().arrangedCount(), m_test.project().iso639Dict().all().size());
  EXPECT_GT(m_test.project().iso639Dict().all().size(), 600U);
}

TEST_F(AddLanguage, DoesNothingWithoutALanguage) {
  m_test.project().addLanguage();
  m_test.project().selectLanguageWindowControllerDidSelect(*sheet().owner, nullptr);
  EXPECT_EQ(codes(), (Codes{"de"}));
  EXPECT_TRUE(m_test.host.files.created().empty());
}

TEST_F(AddLanguage, TakesACodeAsIfItHadBeenChosenInTheDialog) {
  const int before = m_test.window().stringTableView.reloadCount;
  const std::shared_ptr<Language> added = m_test.project().addLanguage("deu");
  EXPECT_EQ(codes(), (Codes{"de", "deu"}));
  EXPECT_EQ(m_test.project().languagesList()->back(), added);
  EXPECT_EQ(added->localizedStringUrl().path(), "/x/App/deu.lproj");
  EXPECT_EQ(added->urlDepth(), 0);
  EXPECT_EQ(added->description(), "German");
  EXPECT_TRUE(added->isIso639_2());
  EXPECT_FALSE(added->inUse());
  EXPECT_EQ(m_test.host.files.created(), (Paths{"/x/App/deu.lproj"}));
  EXPECT_EQ(m_test.window().stringTableView.reloadCount, before + 1);
  EXPECT_FALSE(m_test.project().changed());
}

TEST_F(AddLanguage, TakesACodeWithoutShowingTheDialogOrRememberingAKindOfCodes) {
  m_test.host.defaults.setInteger("SelectLangaugeFilterButtonState", 1);
  m_test.project().addLanguage("fr");
  EXPECT_EQ(m_test.host.interfaces.selectLanguageWindow(), nullptr);
  EXPECT_EQ(m_test.host.defaults.integerForKey("SelectLangaugeFilterButtonState"), 1);
}

TEST_F(AddLanguage, TakesTheCodeOfALanguageThatTheProjectHasLikeTheDialog) {
  EXPECT_TRUE(m_test.project().addLanguage("de")->inUse());
  EXPECT_EQ(codes(), (Codes{"de", "de"}));
}

TEST_F(AddLanguage, AddsNothingForACodeThatTheTableDoesNotHold) {
  EXPECT_EQ(m_test.project().addLanguage("English"), nullptr);
  EXPECT_EQ(m_test.project().addLanguage(""), nullptr);
  EXPECT_EQ(codes(), (Codes{"de"}));
  EXPECT_TRUE(m_test.host.files.created().empty());
}

TEST_F(AddLanguage, GivesNoLanguageForACodeWhoseDirectoryCannotBeCreated) {
  m_test.host.files.failCreating("/x/App/fr.lproj", "The disk is read-only.");
  EXPECT_EQ(m_test.project().addLanguage("fr"), nullptr);
  EXPECT_EQ(codes(), (Codes{"de"}));
  EXPECT_EQ(m_test.alertMessages(), (Codes{"Error creating file:///x/App/fr.lproj for language French"}));
}

TEST(AddLanguageBeforeAnyProject, CreatesNothing) {
  TestProject test;
  test.application.openProjectWindow();
  test.project().addLanguage();
  HeadlessSelectLanguageWindow& sheet = *test.host.interfaces.selectLanguageWindow();
  ASSERT_TRUE(sheet.owner->languageController().selectedObject());
  sheet.owner->done();
  EXPECT_EQ(test.project().addLanguage("de"), nullptr);
  EXPECT_TRUE(test.host.files.created().empty());
  EXPECT_TRUE(test.project().languagesList()->empty());
  EXPECT_TRUE(test.host.panels.alerts.empty());
}

}  // namespace
}  // namespace glossmill
