#include "project/ScanTest.h"

namespace glossmill {
namespace {

/// Which package a scan takes, which sources it scans, and what the strings files give to the strings.
class ProjectScan : public ScanTest {
 protected:
  void addSource(std::string_view path, std::string_view key) {
    addFile(path, "NSLocalizedString(@\"" + std::string(key) + "\", @\"\")");
  }
};

// ---- The package and its project file ----

TEST_F(ProjectScan, OpensADirectoryWithoutAPackageAsAnEmptyProject) {
  addSource("Harbour.app/main.m", "Open");
  addFile("Harbour.app/de.lproj/Localizable.strings", "\"Open\" = \"Auf\";");
  open();
  EXPECT_TRUE(project().opened());
  EXPECT_EQ(keys(), Lines());
  EXPECT_EQ(files(), Lines());
  EXPECT_EQ(codes(), Lines());
  EXPECT_EQ(project().projectPackage(), std::nullopt);
  EXPECT_EQ(log(), Lines{"Unable to find .xcodeproj file in given directory"});
  EXPECT_EQ(systemLog(), Lines());
  EXPECT_EQ(application.recentArray(), Lines{"/P/Harbour.app"});
  EXPECT_FALSE(sheetIsUp());
}

TEST_F(ProjectScan, OpensADirectoryThatCannotBeListedAsAnEmptyProject) {
  open();
  EXPECT_TRUE(project().opened());
  EXPECT_EQ(log(), Lines{"Unable to find .xcodeproj file in given directory"});
}

TEST_F(ProjectScan, PrefersThePackageInASubdirectoryThatIsListedBefore) {
  addFile("Harbour.app/B.xcodeproj/project.pbxproj", "b.m");
  addFile("Harbour.app/A/C.xcodeproj/project.pbxproj", "c.m");
  addSource("Harbour.app/b.m", "B");
  addSource("Harbour.app/c.m", "C");
  open();
  EXPECT_EQ(project().projectPackage(), FileUrl("/P/Harbour.app/A/C.xcodeproj"));
  EXPECT_EQ(project().projectFileData(), "c.m");
  EXPECT_EQ(keys(), Lines{"C"});
}

TEST_F(ProjectScan, WalksTheChosenDirectoryAndNotThatOfThePackage) {
  addFile("Harbour.app/sub/A.xcodeproj/project.pbxproj", "a.m b.m");
  addSource("Harbour.app/a.m", "A");
  addSource("Harbour.app/sub/b.m", "B");
  open();
  EXPECT_EQ(files(), (Lines{"/P/Harbour.app/a.m", "/P/Harbour.app/sub/b.m"}));
  EXPECT_EQ(project().actualDirectoryDepth(), 3);
}

TEST_F(ProjectScan, ReadsAProjectFileInUtf16) {
  using namespace std::string_literals;
  addPackage(
      "\xFF\xFE"
      "a\0.\0m\0"s);
  addSource("Harbour.app/a.m", "A");
  addSource("Harbour.app/b.m", "B");
  open();
  EXPECT_EQ(project().projectFileData(), "a.m");
  EXPECT_EQ(keys(), Lines{"A"});
}

TEST_F(ProjectScan, TestsAgainstTheFormerProjectWhenTheProjectFileIsMissing) {
  addPackage("a.m");
  addSource("Harbour.app/a.m", "Former");
  open();
  addDirectory("Other/B.xcodeproj");
  addSource("Other/a.m", "A");
  addSource("Other/b.m", "B");
  open("Other");
  EXPECT_EQ(project().projectFileData(), "a.m");
  EXPECT_EQ(keys(), Lines{"A"});
  EXPECT_TRUE(project().opened());
  EXPECT_EQ(log(), Lines{"Unable to find .pbxproj file in given project file"});
  EXPECT_EQ(systemLog(), Lines{"Error open Xcode project file: The file does not exist."});
}

TEST_F(ProjectScan, KeepsTheFormerProjectsTextWhenTheProjectFileBreaksOff) {
  addPackage("a.m");
  open();
  addFile("Other/B.xcodeproj/project.pbxproj", "b.m");
  host.files.failReadingAfter("/P/Other/B.xcodeproj/project.pbxproj", 3, "Input/output error.");
  open("Other");
  EXPECT_EQ(project().projectFileData(), "a.m");
  EXPECT_EQ(systemLog(), Lines{"Error open Xcode project file: Input/output error."});
}

TEST_F(ProjectScan, ScansEverySourceWhenNoProjectFileWasEverRead) {
  addDirectory("Harbour.app/A.xcodeproj");
  addSource("Harbour.app/a.m", "A");
  addSource("Harbour.app/b.m", "B");
  open();
  EXPECT_EQ(project().projectFileData(), std::nullopt);
  EXPECT_EQ(keys(), (Lines{"A", "B"}));
}

TEST_F(ProjectScan, ScansNoSourceWhenTheProjectFileIsEmpty) {
  addPackage("");
  addSource("Harbour.app/a.m", "A");
  open();
  EXPECT_EQ(project().projectFileData(), "");
  EXPECT_EQ(files(), Lines());
}

TEST_F(ProjectScan, KeepsWhatItKnowsOfTheProjectFileWhenAProjectIsClosed) {
  addPackage("a.m");
  addSource("Harbour.app/a.m", "A");
  addDirectory("Harbour.app/de.lproj");
  open();
  EXPECT_TRUE(project().closeProject());
  expectNothingOpen();
  EXPECT_EQ(project().projectFileData(), "a.m");
  EXPECT_EQ(project().projectDirectory(), FileUrl("/P/Harbour.app"));
  EXPECT_EQ(project().actualParseFileName(), FileUrl("/P/Harbour.app/a.m"));
  EXPECT_EQ(project().actualDirectoryDepth(), 3);
  ASSERT_NE(project().actualLanguage(), nullptr);
  EXPECT_EQ(project().actualLanguage()->iso639(), "de");
  EXPECT_EQ(project().iso639Dict().nameOf("de"), "German");
}

TEST_F(ProjectScan, CountsDirectoriesAnewInEveryScan) {
  addPackage("");
  addDirectory("Harbour.app/a/b");
  open();
  EXPECT_EQ(project().actualDirectoryDepth(), 4);
  open();
  EXPECT_EQ(project().actualDirectoryDepth(), 4);
}

// ---- Strings ----

TEST_F(ProjectScan, MakesOneRecordOfAKeyInTwoFiles) {
  addPackage("a.m b.m");
  addFile("Harbour.app/a.m", R"(NSLocalizedString(@"Open", @"menu"); NSLocalizedString(@"Open", @"menu"))");
  addFile("Harbour.app/b.m", R"(NSLocalizedString(@"Close", @""); NSLocalizedString(@"Open", @"button"))");
  open();
  EXPECT_EQ(keys(), (Lines{"Open", "Close"}));
  const LocalizeString& record = *project().stringList()[0];
  EXPECT_EQ(record.useCount(), 3);
  EXPECT_EQ(record.commentArray(), (Lines{"menu", "button"}));
  EXPECT_EQ(record.sourceList(), "a.m");
}

TEST_F(ProjectScan, ListsASourceWithoutCalls) {
  addPackage("a.m");
  addFile("Harbour.app/a.m", "int main() {}");
  open();
  EXPECT_EQ(files(), Lines{"/P/Harbour.app/a.m"});
  EXPECT_EQ(keys(), Lines());
  EXPECT_EQ(log(), Lines());
}

TEST_F(ProjectScan, ReadsSourcesInUtf16) {
  using namespace std::string_literals;
  addPackage("a.m");
  std::string wide = "\xFE\xFF"s;
  for (const char byte : R"(NSLocalizedString(@"Open", @"c"))"s) wide += {'\0', byte};
  addFile("Harbour.app/a.m", wide);
  open();
  EXPECT_EQ(keys(), Lines{"Open"});
}

// ---- Translations ----

TEST_F(ProjectScan, TakesTheLaterOfTwoEntriesOfAKey) {
  addPackage("a.m");
  addSource("Harbour.app/a.m", "Open");
  addFile("Harbour.app/de.lproj/Localizable.strings", "\"Open\" = \"Auf\";\n\"Open\" = \"Öffnen\";\n");
  open();
  EXPECT_EQ(translation(0, "de"), "Öffnen");
}

TEST_F(ProjectScan, TakesAnEmptyTranslationForOne) {
  addPackage("a.m");
  addSource("Harbour.app/a.m", "Open");
  addFile("Harbour.app/de.lproj/Localizable.strings", "\"Open\" = \"\";\n");
  open();
  EXPECT_EQ(translation(0, "de"), "");
  EXPECT_EQ(project().languageStatusString(*project().languagesList()->front()), "Complete");
}

TEST_F(ProjectScan, GivesEachLanguageItsOwnTranslations) {
  addPackage("a.m");
  addSource("Harbour.app/a.m", "Open");
  addFile("Harbour.app/de.lproj/Localizable.strings", "\"Open\" = \"Öffnen\";");
  addFile("Harbour.app/English.lproj/Localizable.strings", "\"Open\" = \"Open it\";");
  addFile("Harbour.app/pt-BR.lproj/Localizable.strings", "\"Shut\" = \"Fechar\";");
  open();
  EXPECT_EQ(codes(), (Lines{"en", "de", "pt-BR"}));
  EXPECT_EQ(translation(0, "de"), "Öffnen");
  EXPECT_EQ(translation(0, "en"), "Open it");
  EXPECT_EQ(translation(0, "pt-BR"), "none");
}

TEST_F(ProjectScan, ReadsTheFileThatWasTakenForAnotherLanguage) {
  addPackage("a.m");
  addSource("Harbour.app/a.m", "Open");
  addFile("Harbour.app/a/en.lproj/Localizable.strings", "\"Open\" = \"en\";");
  addFile("Harbour.app/b/de.lproj/Localizable.strings", "\"Open\" = \"de\";");
  addFile("Harbour.app/c/en.lproj/Localizable.strings", "\"Open\" = \"second en\";");
  open();
  EXPECT_EQ(translation(0, "en"), "en");
  EXPECT_EQ(translation(0, "de"), "second en");
}

TEST_F(ProjectScan, DoesNotGiveAStringsFileBeforeTheFirstLanguageToALanguageOfThisProject) {
  addPackage("a.m");
  addSource("Harbour.app/a.m", "Open");
  addDirectory("Harbour.app/de.lproj");
  open();
  addFile("Other/A.xcodeproj/project.pbxproj", "a.m");
  addFile("Other/Localizable.strings", "\"Open\" = \"x\";");
  addSource("Other/a.m", "Open");
  addDirectory("Other/fr.lproj");
  open("Other");
  EXPECT_EQ(codes(), Lines{"fr"});
  EXPECT_EQ(translation(0, "fr"), "none");
  EXPECT_EQ(translation(0, "de"), "none");
  EXPECT_EQ(log(), (Lines{"Found Localizable.strings for Language: German",
                          "Missing Localizable.strings for language: French"}));
}

TEST_F(ProjectScan, ReportsWhatItLeftOutUntilTheProjectIsClosed) {
  addPackage("a.m b.m");
  addFile("Harbour.app/a.m", R"(NSLocalizedString(@"Open", nil); NSLocalizedString(@"Shut", @""))");
  addFile("Harbour.app/b.m");
  host.files.failOpening("/P/Harbour.app/b.m", "Permission denied.");
  addFile("Harbour.app/de.lproj/Localizable.strings", "\"Shut\" = \"Zu\";\nx\n\"Go\" = \"Los\";\n");
  open();
  ASSERT_EQ(project().scanReport().files().size(), 3U);
  EXPECT_EQ(project().scanReport().files()[0].file, FileUrl("/P/Harbour.app/a.m"));
  EXPECT_EQ(project().scanReport().files()[1].unread->sentence, "Permission denied.");
  const ScanTotals totals = project().scanReport().totals();
  EXPECT_EQ(totals.rejectedCalls, 1U);
  EXPECT_EQ(totals.unreadSources, 1U);
  EXPECT_EQ(totals.rejectedEntries, 1U);
  EXPECT_EQ(totals.unmatchedEntries, 1U);
  project().closeProject();
  EXPECT_TRUE(project().scanReport().files().empty());
}

TEST_F(ProjectScan, ReportsWhatTheSystemDidNotGiveWithWhatItIsToTheProject) {
  addPackage("a.m");
  addFile("Harbour.app/a.m", "text");
  addFile("Harbour.app/de.lproj/Localizable.strings", "\xFF");
  addDirectory("Harbour.app/locked");
  host.files.failListing(inP("Harbour.app/locked"), "No.");
  host.files.onOpen = [this](const std::string& path) {
    if (path == inP("Harbour.app/a.m")) host.files.failReadingAfter(path, 2, "Broken.");
  };
  open();
  std::vector<std::pair<std::string, FileRole>> found;
  for (const FileFindings& file : project().scanReport().files()) found.emplace_back(file.file.path(), file.role);
  EXPECT_EQ(found, (std::vector<std::pair<std::string, FileRole>>{
                       {inP("Harbour.app/a.m"), FileRole::Source},
                       {inP("Harbour.app/de.lproj/Localizable.strings"), FileRole::StringsFile},
                       {inP("Harbour.app/locked"), FileRole::Directory}}));
  EXPECT_EQ(project().scanReport().files()[1].unread->kind, ErrorKind::Undecodable);
  EXPECT_EQ(project().scanReport().files()[0].unread->kind, ErrorKind::Other);
}

TEST_F(ProjectScan, DoesNotTakeASourceThatIsGoneForTheOneBeingRead) {
  addPackage("a.m b.m");
  addSource("Harbour.app/a.m", "Open");
  addSource("Harbour.app/b.m", "Shut");
  host.files.onOpen = [this](const std::string& path) {
    if (path == "/P/Harbour.app/a.m") host.files.remove("/P/Harbour.app/b.m");
  };
  open();
  EXPECT_EQ(project().actualParseFileName(), FileUrl("/P/Harbour.app/a.m"));
  EXPECT_EQ(files(), Lines{"/P/Harbour.app/a.m"});
  EXPECT_EQ(log(), Lines());
  EXPECT_EQ(systemLog(), Lines());
}

}  // namespace
}  // namespace glossmill
