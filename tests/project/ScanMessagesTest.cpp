#include <algorithm>

#include "project/ScanTest.h"

namespace glossmill {
namespace {

/// What a scan writes into the log window and into the system log, word for word.
class ScanMessages : public ScanTest {
 protected:
  void addGerman(std::string_view stringsFile) { addFile("Harbour.app/de.lproj/Localizable.strings", stringsFile); }

  /// A project of one source with the string "Open", with this German strings file; the messages of reading it, behind
  /// those of finding it.
  void openWithGerman(std::string_view stringsFile) {
    addPackage("a.m");
    addFile("Harbour.app/a.m", R"(NSLocalizedString(@"Open", @""))");
    addGerman(stringsFile);
    open();
    messages = log();
    ASSERT_FALSE(messages.empty());
    messages.erase(messages.begin());
    systemMessages = systemLog();
    ASSERT_GE(systemMessages.size(), 2U);
    systemMessages.erase(systemMessages.begin(), systemMessages.begin() + 2);
  }

  Lines messages;
  Lines systemMessages;
};

TEST_F(ScanMessages, NameEachStringsFileThatIsFoundAndRead) {
  addPackage("");
  addGerman("");
  open();
  EXPECT_EQ(log(), Lines{"Found Localizable.strings for Language: German"});
  EXPECT_EQ(systemLog(), (Lines{"Parsing file: file:///P/Harbour.app/de.lproj/Localizable.strings", "Lines: 1"}));
}

TEST_F(ScanMessages, NameADirectoryThatCannotBeListedInTheSystemLogOnly) {
  addPackage("");
  addFile("Harbour.app/locked/a.m");
  host.files.failListing(inP("Harbour.app/locked"), "Permission denied.");
  open();
  EXPECT_EQ(log(), Lines());
  EXPECT_EQ(systemLog(), Lines{"Error reading directory: file:///P/Harbour.app/locked\nPermission denied."});
}

TEST_F(ScanMessages, WriteAUrlWithItsStrangeBytesInPercentForm) {
  addPackage("");
  addFile("Harbour.app/Häfen & Kais/de.lproj/Localizable.strings", "\n\n");
  open();
  EXPECT_EQ(
      systemLog(),
      (Lines{"Parsing file: file:///P/Harbour.app/H%C3%A4fen%20&%20Kais/de.lproj/Localizable.strings", "Lines: 3"}));
}

TEST_F(ScanMessages, CountTheLinesThatAreLeftWithoutComments) {
  addPackage("");
  addGerman("/* one\ntwo */\n\n// three\n\n");
  open();
  EXPECT_EQ(systemLog().back(), "Lines: 4");
}

TEST_F(ScanMessages, NameAnOldLanguageDirectoryAndItsCode) {
  addPackage("");
  addDirectory("Harbour.app/English.lproj");
  addDirectory("Harbour.app/Swiss German.lproj");
  open();
  EXPECT_EQ(log(), (Lines{"Changing old language description: English to ISO639: en",
                          "Changing old language description: Swiss German to ISO639: gsw",
                          "Missing Localizable.strings for language: English",
                          "Missing Localizable.strings for language: Swiss German"}));
}

TEST_F(ScanMessages, TellOfALanguageWithoutAStringsFileInBothLogs) {
  addPackage("");
  addDirectory("Harbour.app/fr.lproj");
  addGerman("");
  open();
  EXPECT_EQ(log().back(), "Missing Localizable.strings for language: French");
  EXPECT_EQ(systemLog().back(), "Missing Localizable.strings for language: French");
  EXPECT_EQ(systemLog().size(), 3U);
}

TEST_F(ScanMessages, PrintNullForALanguageWithoutADescription) {
  addPackage("");
  addFile("Harbour.app/xx-YY.lproj/Localizable.strings");
  addDirectory("Harbour.app/zz-ZZ.lproj");
  open();
  EXPECT_EQ(log(), (Lines{"Found Localizable.strings for Language: (null)",
                          "Missing Localizable.strings for language: (null)"}));
  EXPECT_EQ(systemLog().back(), "Missing Localizable.strings for language: (null)");
}

TEST_F(ScanMessages, TellOfASourceThatCannotBeRead) {
  addPackage("My a.m b.m");
  addFile("Harbour.app/My a.m", R"(NSLocalizedString(@"Lost", @""))");
  addFile("Harbour.app/b.m", R"(NSLocalizedString(@"Open", @""))");
  host.files.failOpening("/P/Harbour.app/My a.m", "Permission denied.");
  open();
  EXPECT_EQ(log(), Lines{"Error reading source: file:///P/Harbour.app/My%20a.m"});
  EXPECT_EQ(systemLog(), Lines{"Error reading source: file:///P/Harbour.app/My%20a.m\nPermission denied."});
  EXPECT_EQ(files(), (Lines{"/P/Harbour.app/My a.m", "/P/Harbour.app/b.m"}));
  EXPECT_EQ(keys(), Lines{"Open"});
}

TEST_F(ScanMessages, TellOfASourceThatIsNoTextAndTakeNothingOfIt) {
  addPackage("a.m");
  addFile("Harbour.app/a.m", "NSLocalizedString(@\"Open\", @\"\") \xE4\xF6");
  open();
  EXPECT_EQ(log(), Lines{"Error reading source: file:///P/Harbour.app/a.m"});
  EXPECT_EQ(systemLog(), Lines{"Error reading source: file:///P/Harbour.app/a.m\n"
                               "The file is not valid UTF-8 and has no byte-order mark of another encoding."});
  EXPECT_EQ(keys(), Lines());
}

TEST_F(ScanMessages, TellOfABadCallWithItsFileAndAnExcerpt) {
  addPackage("a.m");
  addFile("Harbour.app/sub/a.m", "x NSLocalizedString(@\"Open\", nil);\n" + std::string(100, 'y'));
  open();
  const std::string excerpt = "NSLocalizedString(@\"Open\", nil);\n" + std::string(47, 'y');
  EXPECT_EQ(log(), Lines{"Bad formatted LocalizedString in file: a.m ignored\n    " + excerpt});
  EXPECT_EQ(systemLog(), Lines{"Ignoring bad formatted String: LocalizedString(" + excerpt + ")"});
}

TEST_F(ScanMessages, TellOfBadCallsInTheOrderOfTheFiles) {
  addPackage("a.m b.m");
  addFile("Harbour.app/a.m", "NSLocalizedString(1) NSLocalizedString");
  addFile("Harbour.app/b.m", "NSLocalizedString(3)");
  open();
  EXPECT_EQ(log(),
            (Lines{"Bad formatted LocalizedString in file: a.m ignored\n    NSLocalizedString(1) NSLocalizedString",
                   "Bad formatted LocalizedString in file: a.m ignored\n    NSLocalizedString",
                   "Bad formatted LocalizedString in file: b.m ignored\n    NSLocalizedString(3)"}));
}

TEST_F(ScanMessages, TellOfAStringsFileThatCannotBeReadAndGoOnWithTheNext) {
  addPackage("a.m");
  addFile("Harbour.app/a.m", R"(NSLocalizedString(@"Open", @""))");
  addGerman("\"Open\" = \"Auf\";");
  addFile("Harbour.app/fr.lproj/Localizable.strings", "\"Open\" = \"Ouvrir\";");
  host.files.failReadingAfter("/P/Harbour.app/de.lproj/Localizable.strings", 1000, "Input/output error.");
  open();
  EXPECT_EQ(log(),
            (Lines{"Found Localizable.strings for Language: German", "Found Localizable.strings for Language: French",
                   "Error reading Localizable.strings: Input/output error."}));
  EXPECT_EQ(systemLog(), (Lines{"Parsing file: file:///P/Harbour.app/de.lproj/Localizable.strings",
                                "Error reading Localizable.strings: Input/output error.",
                                "Parsing file: file:///P/Harbour.app/fr.lproj/Localizable.strings", "Lines: 1"}));
  EXPECT_EQ(translation(0, "de"), "none");
  EXPECT_EQ(translation(0, "fr"), "Ouvrir");
}

TEST_F(ScanMessages, TellOfAMalformedStringsFileAndTakeNothingOfIt) {
  openWithGerman(
      "\"Open\" = \"Auf\";\n\"Close\" = \"Schlie\xDF"
      "en\";\n");
  EXPECT_EQ(messages,
            Lines{"Error reading Localizable.strings: The file is not valid UTF-8 and has no byte-order mark of "
                  "another encoding."});
  EXPECT_EQ(systemLog().back(), messages.back());
  EXPECT_EQ(translation(0, "de"), "none");
}

TEST_F(ScanMessages, TellOfAKeyWithoutAMatchInDifferentWords) {
  openWithGerman("\"Shut\" = \"Zu\";");
  EXPECT_EQ(messages, Lines{"String in Localizable.strings found with no match in source code\n    Shut"});
  EXPECT_EQ(systemMessages, Lines{"String in Localizable.strings found with no match in Code:\nShut"});
  EXPECT_EQ(keys(), Lines{"Open"});
}

TEST_F(ScanMessages, TellOfABadLineInTheSameWords) {
  openWithGerman("\"Open\" \"Auf\";\n \n");
  const Lines expected = {"Bad formattet String in Localizable.strings ignored\n    \" \"Auf\";",
                          "Bad formattet String in Localizable.strings ignored\n     "};
  EXPECT_EQ(messages, expected);
  EXPECT_EQ(systemMessages, expected);
}

TEST_F(ScanMessages, ComeInTheOrderInWhichTheScanMeetsThings) {
  addPackage("a.m z.m");
  addFile("Harbour.app/English.lproj/Localizable.strings", "x\n\"y\"\n");
  addFile("Harbour.app/a.m", "NSLocalizedString(1)");
  addGerman("z");
  addFile("Harbour.app/z.m", "\x80");
  open();
  EXPECT_EQ(log(),
            (Lines{"Changing old language description: English to ISO639: en",
                   "Found Localizable.strings for Language: English",
                   "Bad formatted LocalizedString in file: a.m ignored\n    NSLocalizedString(1)",
                   "Found Localizable.strings for Language: German", "Error reading source: file:///P/Harbour.app/z.m",
                   "Bad formattet String in Localizable.strings ignored\n    x",
                   "String in Localizable.strings found with no match in source code\n    y",
                   "Bad formattet String in Localizable.strings ignored\n    z"}));
}

TEST_F(ScanMessages, OfAFormerProjectAreGone) {
  openWithGerman("x");
  addDirectory("Other");
  open("Other");
  EXPECT_EQ(log(), Lines{"Unable to find .xcodeproj file in given directory"});
}

}  // namespace
}  // namespace glossmill
