#include <gtest/gtest.h>

#include <algorithm>

#include "support/TestProject.h"

namespace glossmill {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kCommentedGerman = "/* old */ \"Open\" = \"Öffnen\";\n";
constexpr const char* kNewGerman = "\n/* Menu */\n\"Open\" = \"Öffnen\"\n\n";

/// Two strings; German has a strings file, French only its directory.
class Saving : public testing::Test {
 protected:
  void SetUp() override {
    m_test.addString("Open", "Menu");
    m_test.addString("Close");
    m_test.addLanguage("de", kCommentedGerman);
    m_test.addBareLanguage("fr");
    m_test.open();
  }

  bool systemLogHolds(const std::string& line) {
    const std::vector<std::string> lines = m_test.host.systemLog.lines();
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  }

  TestProject m_test;
};

TEST_F(Saving, WritesEveryLanguageWhetherEditedOrNot) {
  EXPECT_TRUE(m_test.project().saveProject());
  EXPECT_EQ(m_test.savedFile("de"), kNewGerman);
  EXPECT_EQ(m_test.savedFile("fr"), "\n");
  EXPECT_EQ(m_test.host.files.written(), (Texts{stringsFileOf("de"), stringsFileOf("fr")}));
}

TEST_F(Saving, AppendsTheNameOfTheStringsFileToALanguageThatHadOnlyItsDirectory) {
  EXPECT_EQ(m_test.language("fr")->localizedStringUrl().path(), inProject("fr.lproj"));
  EXPECT_NE(m_test.language("fr")->urlDepth(), Language::kStringsFile);
  m_test.project().saveProject();
  EXPECT_EQ(m_test.language("fr")->localizedStringUrl().path(), stringsFileOf("fr"));
  EXPECT_EQ(m_test.language("fr")->urlDepth(), Language::kStringsFile);
}

TEST_F(Saving, AsksToAddANewFileToTheProject) {
  m_test.project().saveProject();
  ASSERT_EQ(m_test.host.panels.alerts.size(), 1U);
  const AlertRequest& alert = m_test.host.panels.alerts.front();
  EXPECT_EQ(alert.message,
            "Created new Localizable.strings for language French at:\n\n"
            "file:///x/App/fr.lproj/Localizable.strings\n\n"
            "You must add this file to your Xcode project bundle!");
  EXPECT_EQ(alert.informativeText, "");
  EXPECT_EQ(alert.defaultButton, "Ok");
  EXPECT_EQ(alert.alternateButton, "");
  EXPECT_EQ(alert.otherButton, "");
}

TEST_F(Saving, TwiceWritesIdenticalBytesAndAnnouncesNewFilesOnce) {
  m_test.project().saveProject();
  const auto german = m_test.savedFile("de");
  const auto french = m_test.savedFile("fr");
  EXPECT_EQ(m_test.host.panels.alerts.size(), 1U);
  EXPECT_TRUE(m_test.project().saveProject());
  EXPECT_EQ(m_test.savedFile("de"), german);
  EXPECT_EQ(m_test.savedFile("fr"), french);
  EXPECT_EQ(m_test.host.panels.alerts.size(), 1U);
  EXPECT_EQ(m_test.host.files.written().size(), 2U);
}

TEST_F(Saving, WritesWhatTheNextScanReads) {
  m_test.setTranslation("Close", "fr", "Fermer");
  m_test.project().saveProject();
  m_test.open();
  EXPECT_EQ(m_test.translation("Open", "de"), "Öffnen");
  EXPECT_EQ(m_test.translation("Close", "fr"), "Fermer");
  EXPECT_EQ(m_test.translation("Open", "fr"), std::nullopt);
}

TEST_F(Saving, LeavesOutStringsThatTheFilterHoldsBack) {
  m_test.setTranslation("Open", "fr", "Ouvrir");
  m_test.setTranslation("Close", "fr", "Fermer");
  m_test.chooseFilter(1);
  m_test.project().saveProject();
  EXPECT_EQ(m_test.savedFile("de"), "\n");
  EXPECT_EQ(m_test.savedFile("fr"), "\n/*  */\n\"Close\" = \"Fermer\"\n\n");
}

TEST_F(Saving, WritesTheListInItsOwnOrderWhateverTheTableShows) {
  m_test.setTranslation("Close", "de", "Schließen");
  m_test.project().stringController().setLess(
      [](const LocalizeString& a, const LocalizeString& b) { return a.name() < b.name(); });
  m_test.project().stringController().setFilter([](const LocalizeString&) { return false; });
  m_test.project().saveProject();
  EXPECT_EQ(m_test.savedFile("de"), std::string(kNewGerman) + "/*  */\n\"Close\" = \"Schließen\"\n\n");
}

TEST_F(Saving, LowersTheChangedFlag) {
  m_test.project().setChanged(true);
  m_test.project().saveProjectButton();
  EXPECT_FALSE(m_test.project().changed());
  EXPECT_FALSE(m_test.window().window.isDocumentEdited);
  EXPECT_EQ(m_test.savedFile("de"), kNewGerman);
}

TEST_F(Saving, MakesADirectoryThatIsGoneAgain) {
  m_test.host.files.remove(inProject("de.lproj"));
  EXPECT_TRUE(m_test.project().saveProject());
  EXPECT_EQ(m_test.savedFile("de"), kNewGerman);
  EXPECT_EQ(m_test.host.files.created().front(), inProject("de.lproj"));
  EXPECT_EQ(m_test.alertMessages().front(),
            "Created new Localizable.strings for language German at:\n\n"
            "file:///x/App/de.lproj/Localizable.strings\n\n"
            "You must add this file to your Xcode project bundle!");
}

TEST_F(Saving, MakesTheDirectoriesAboveAMissingOneToo) {
  m_test.host.files.remove(TestProject::kDirectory);
  EXPECT_TRUE(m_test.project().saveProject());
  EXPECT_EQ(m_test.savedFile("fr"), "\n");
}

TEST_F(Saving, ReportsADirectoryThatCannotBeCreatedAndGoesOnWithTheNextLanguage) {
  m_test.host.files.remove(inProject("de.lproj"));
  m_test.host.files.failCreating(inProject("de.lproj"), "The disk is read-only.");
  m_test.project().setChanged(true);
  EXPECT_FALSE(m_test.project().saveProject());
  EXPECT_EQ(m_test.alertMessages().front(),
            "Error creating file:///x/App/de.lproj/Localizable.strings for language German");
  EXPECT_EQ(m_test.host.panels.alerts.front().defaultButton, "Ok");
  EXPECT_TRUE(
      systemLogHolds("Error The disk is read-only. creating directory file:///x/App/de.lproj/Localizable.strings"));
  EXPECT_EQ(m_test.savedFile("de"), std::nullopt);
  EXPECT_EQ(m_test.host.files.written(), (Texts{stringsFileOf("fr")}));
  EXPECT_FALSE(m_test.project().changed());
}

TEST_F(Saving, ReportsAFileThatCannotBeWrittenAndGoesOnWithTheNextLanguage) {
  m_test.host.files.failWriting(stringsFileOf("de"), "The disk is full.");
  m_test.project().setChanged(true);
  EXPECT_FALSE(m_test.project().saveProject());
  EXPECT_EQ(m_test.alertMessages().front(), "Error saving Localizable.strings for language German");
  EXPECT_EQ(m_test.host.panels.alerts.front().informativeText, "");
  EXPECT_EQ(m_test.host.panels.alerts.front().defaultButton, "Ok");
  EXPECT_TRUE(systemLogHolds("Error The disk is full. writing file: file:///x/App/de.lproj/Localizable.strings"));
  EXPECT_EQ(m_test.savedFile("de"), kCommentedGerman);
  EXPECT_EQ(m_test.savedFile("fr"), "\n");
  EXPECT_FALSE(m_test.project().changed());
}

TEST_F(Saving, TellsOnlyTheSystemLogTheReason) {
  const std::string before(m_test.application.logWindowController()->logText());
  m_test.host.files.failWriting(stringsFileOf("de"), "The disk is full.");
  m_test.project().saveProject();
  EXPECT_EQ(m_test.application.logWindowController()->logText(), before);
}

TEST_F(Saving, AnnouncesNoNewFileThatCouldNotBeWritten) {
  m_test.host.files.failWriting(stringsFileOf("fr"), "The disk is full.");
  EXPECT_FALSE(m_test.project().saveProject());
  EXPECT_EQ(m_test.alertMessages(), (Texts{"Error saving Localizable.strings for language French"}));
  EXPECT_EQ(m_test.savedFile("fr"), std::nullopt);
}

TEST_F(Saving, RefusesTextThatUtf8CannotHoldAndLeavesTheFormerFileWhole) {
  m_test.setTranslation("Close", "de", "half a pair: \xED\xA0\xBD");
  EXPECT_FALSE(m_test.project().saveProject());
  EXPECT_EQ(m_test.alertMessages().front(), "Error saving Localizable.strings for language German");
  EXPECT_EQ(m_test.savedFile("de"), kCommentedGerman);
}

TEST(SavingThroughALink, WritesInsideTheProject) {
  TestProject test;
  test.addString("Open", "Menu");
  test.addBareLanguage("de");
  test.host.files.addFile(inProject("shared/German.strings"), "\"Open\" = \"Auf\";");
  test.host.files.addLink(stringsFileOf("de"), "../shared/German.strings");
  test.open();
  EXPECT_TRUE(test.project().saveProject());
  EXPECT_EQ(test.host.files.bytesOf(inProject("shared/German.strings")), "\n/* Menu */\n\"Open\" = \"Auf\"\n\n");
}

TEST(SavingThroughALink, IsRefusedOutsideTheProject) {
  TestProject test;
  test.addString("Open", "Menu");
  test.addLanguage("fr", "\"Open\" = \"Ouvrir\";");
  test.addBareLanguage("de");
  test.host.files.addFile("/shared/German.strings", "\"Open\" = \"Auf\";");
  test.host.files.addLink(stringsFileOf("de"), "/shared/German.strings");
  test.open();
  test.project().setChanged(true);
  test.host.panels.willAnswer(AlertAnswer::Default);
  EXPECT_FALSE(test.project().saveProject());
  ASSERT_TRUE(test.project().lastSave().refusal);
  EXPECT_EQ(test.project().lastSave().refusal->kind, SaveRefusal::Kind::Outside);
  EXPECT_EQ(test.host.files.bytesOf("/shared/German.strings"), "\"Open\" = \"Auf\";");
  EXPECT_EQ(test.savedFile("fr"), "\"Open\" = \"Ouvrir\";");
  EXPECT_TRUE(test.project().changed());
  EXPECT_EQ(test.alertMessages(), Texts{"Files outside the project would be written. Save anyway?"});
}

TEST(SavingThroughALink, IsDoneOutsideTheProjectWhenTheUserSaysSo) {
  TestProject test;
  test.addString("Open", "Menu");
  test.addBareLanguage("de");
  test.host.files.addFile("/shared/German.strings", "\"Open\" = \"Auf\";");
  test.host.files.addLink(stringsFileOf("de"), "/shared/German.strings");
  test.open();
  test.host.panels.willAnswer(AlertAnswer::Alternate);
  EXPECT_TRUE(test.project().saveProject());
  EXPECT_EQ(test.host.files.bytesOf("/shared/German.strings"), "\n/* Menu */\n\"Open\" = \"Auf\"\n\n");
}

TEST_F(Saving, IsRefusedWhenSomebodyElseHasWrittenAFileSinceItWasRead) {
  m_test.host.files.addFile(stringsFileOf("de"), "edited elsewhere");
  m_test.project().setChanged(true);
  m_test.host.panels.willAnswer(AlertAnswer::Default);
  EXPECT_FALSE(m_test.project().saveProject());
  EXPECT_EQ(m_test.project().lastSave().refusal->kind, SaveRefusal::Kind::Changed);
  EXPECT_EQ(m_test.savedFile("de"), "edited elsewhere");
  EXPECT_FALSE(m_test.host.files.exists(stringsFileOf("fr")));
  EXPECT_TRUE(m_test.project().changed());
}

TEST_F(Saving, IsRefusedWhenAFileHasAppearedWhereThereWasNone) {
  m_test.host.files.addFile(stringsFileOf("fr"), "from elsewhere");
  m_test.host.panels.willAnswer(AlertAnswer::Default);
  EXPECT_FALSE(m_test.project().saveProject());
  EXPECT_EQ(m_test.savedFile("fr"), "from elsewhere");
}

TEST_F(Saving, AFileOfItsOwnIsNoChangeByOthers) {
  EXPECT_TRUE(m_test.project().saveProject());
  m_test.setTranslation("Close", "fr", "Fermer");
  EXPECT_TRUE(m_test.project().saveProject());
  EXPECT_EQ(m_test.project().lastSave().refusal, std::nullopt);
}

/// What cannot be read would be lost, so nothing is written unless somebody says so.
class SavingWhatWasNotRead : public testing::Test {
 protected:
  SavingWhatWasNotRead() {
    m_test.addString("Open", "Menu");
    m_test.addLanguage("de", "\"Open\" = \"Auf\";");
    m_test.addLanguage("fr", "\"Open\" = \"Ouvrir\";");
  }
  std::vector<std::string> unread() {
    std::vector<std::string> paths;
    for (const UnreadPlace& place : m_test.project().unread()) paths.push_back(place.url.path());
    return paths;
  }
  void expectRefusal() {
    m_test.project().setChanged(true);
    m_test.host.panels.willAnswer(AlertAnswer::Default);
    EXPECT_FALSE(m_test.project().saveProject());
    EXPECT_EQ(m_test.project().lastSave().refusal->kind, SaveRefusal::Kind::Incomplete);
    EXPECT_TRUE(m_test.project().changed());
    EXPECT_EQ(m_test.host.files.written(), Texts());
  }

  TestProject m_test;
};

TEST_F(SavingWhatWasNotRead, IsRefusedForADirectoryThatCannotBeListed) {
  m_test.host.files.addDirectory(inProject("Sources"));
  m_test.host.files.failListing(inProject("Sources"), "No.");
  m_test.open();
  EXPECT_EQ(unread(), Texts{inProject("Sources")});
  expectRefusal();
}

TEST_F(SavingWhatWasNotRead, IsRefusedForAStringsFileThatCannotBeReadOrDecoded) {
  m_test.host.files.failReadingAfter(stringsFileOf("de"), 3, "Broken.");
  m_test.host.files.addFile(stringsFileOf("fr"), "\"Open\" = \"\xFF\";");
  m_test.open();
  EXPECT_EQ(unread(), (Texts{stringsFileOf("de"), stringsFileOf("fr")}));
  expectRefusal();
}

TEST_F(SavingWhatWasNotRead, IsDoneWhenTheUserSaysSo) {
  m_test.host.files.failReadingAfter(stringsFileOf("de"), 3, "Broken.");
  m_test.open();
  m_test.host.panels.willAnswer(AlertAnswer::Alternate);  // it is not whole
  m_test.host.panels.willAnswer(AlertAnswer::Alternate);  // and so it cannot be kept
  EXPECT_TRUE(m_test.project().saveProject());
  EXPECT_EQ(m_test.savedFile("de"), "\n");
}

TEST_F(SavingWhatWasNotRead, CountsAnewWithTheNextScan) {
  m_test.host.files.addDirectory(inProject("Sources"));
  m_test.host.files.failListing(inProject("Sources"), "No.");
  m_test.open();
  m_test.host.files.remove(inProject("Sources"));
  m_test.open();
  EXPECT_EQ(unread(), Texts());
  EXPECT_TRUE(m_test.project().saveProject());
}

TEST_F(Saving, TellsHowManyEntriesWereNotWrittenAgain) {
  EXPECT_TRUE(m_test.project().saveProject());
  EXPECT_EQ(m_test.project().lastSave().languages.at(0).entriesBefore, 1U);
  EXPECT_EQ(m_test.project().lastSave().languages.at(0).notWritten(), 0U);
  TestProject other;
  other.addString("Open");
  other.addLanguage("de", "\"Open\" = \"Auf\";\n\"Gone\" = \"Weg\";\nnonsense\n");
  other.open();
  EXPECT_TRUE(other.project().saveProject());
  EXPECT_EQ(other.project().lastSave().languages.at(0).entriesBefore, 3U);
  EXPECT_EQ(other.project().lastSave().languages.at(0).entriesAfter, 1U);
  EXPECT_EQ(other.project().lastSave().languages.at(0).notWritten(), 2U);
}

TEST(SavingAnUnknownLanguage, ShowsThatItHasNoDescription) {
  TestProject test;
  test.addBareLanguage("klingon");
  test.open();
  test.project().saveProject();
  ASSERT_EQ(test.alertMessages().size(), 1U);
  EXPECT_TRUE(test.alertMessages().front().starts_with("Created new Localizable.strings for language (null) at:"));
}

TEST(SavingTexts, AreInTheLanguageOfTheUser) {
  TestProject test({{"Ok", "Gut"}, {"Error saving Localizable.strings for language %@", "%@ nicht gesichert"}});
  test.addLanguage("de");
  test.open();
  test.host.files.failWriting(stringsFileOf("de"), "Voll.");
  EXPECT_FALSE(test.project().saveProject());
  EXPECT_EQ(test.alertMessages(), (Texts{"German nicht gesichert"}));
  EXPECT_EQ(test.host.panels.alerts.front().defaultButton, "Gut");
}

}  // namespace
}  // namespace glossmill
