#include "project/ScanTest.h"

namespace glossmill {
namespace {

/// The user's language has its own formats, which are found only when a text is looked up before it is filled.
class TranslatedScanMessages : public ScanTest {
 protected:
  TranslatedScanMessages()
      : ScanTest({{"Parsing project directory...", "Ordner..."},
                  {"Parsing Localizable.strings ...", "Dateien..."},
                  {"Choose project directory...", "Wo?"},
                  {"Unable to find .xcodeproj file in given directory", "Kein Paket"},
                  {"Unable to find .pbxproj file in given project file", "Kein Projekt"},
                  {"Changing old language description: %@ to ISO639: %@", "Name %@, Code %@"},
                  {"Found Localizable.strings for Language: %@", "Da: %@"},
                  {"Missing Localizable.strings for language: %@", "Fehlt: %@"},
                  {"Error reading source: %@", "Unlesbar: %@"},
                  {"Bad formatted LocalizedString in file: %@ ignored\n    %@", "Schlecht (%@): %@"},
                  {"Error reading Localizable.strings: %@", "Lesefehler: %@"},
                  {"String in Localizable.strings found with no match in source code\n    %@", "Fremd: %@"},
                  {"Bad formattet String in Localizable.strings ignored\n    %@", "Zeile: %@"}}) {}
};

TEST_F(TranslatedScanMessages, StandInTheLogWindowAndEnglishInTheSystemLog) {
  addPackage("a.m b.m");
  addFile("Harbour.app/English.lproj/Localizable.strings", "x\n\"y\"");
  addFile("Harbour.app/a.m", "NSLocalizedString(1)");
  addFile("Harbour.app/b.m", "\x80");
  addDirectory("Harbour.app/fr.lproj");
  open();
  EXPECT_EQ(log(), (Lines{"Name English, Code en", "Da: English", "Schlecht (a.m): NSLocalizedString(1)",
                          "Unlesbar: file:///P/Harbour.app/b.m", "Zeile: x", "Fremd: y", "Fehlt: French"}));
  EXPECT_EQ(systemLog(), (Lines{"Ignoring bad formatted String: LocalizedString(NSLocalizedString(1))",
                                "Error reading source: file:///P/Harbour.app/b.m\n"
                                "The file is not valid UTF-8 and has no byte-order mark of another encoding.",
                                "Parsing file: file:///P/Harbour.app/English.lproj/Localizable.strings", "Lines: 2",
                                "Bad formattet String in Localizable.strings ignored\n    x",
                                "String in Localizable.strings found with no match in Code:\ny",
                                "Missing Localizable.strings for language: French"}));
  EXPECT_EQ(titles, (Lines{"Ordner...", "Dateien..."}));
  EXPECT_EQ(host.panels.openPanels.back().title, "Wo?");
  EXPECT_EQ(host.panels.openPanels.back().prompt, "Choose");
}

TEST_F(TranslatedScanMessages, TellOfAPackageOrAProjectFileThatIsMissing) {
  addDirectory("Harbour.app");
  open();
  EXPECT_EQ(log(), Lines{"Kein Paket"});
  addDirectory("Harbour.app/A.xcodeproj");
  open();
  EXPECT_EQ(log(), Lines{"Kein Projekt"});
  EXPECT_EQ(systemLog(), Lines{"Error open Xcode project file: The file does not exist."});
}

TEST_F(TranslatedScanMessages, TellOfAStringsFileThatCannotBeRead) {
  addPackage("");
  addFile("Harbour.app/de.lproj/Localizable.strings", "");
  host.files.failOpening("/P/Harbour.app/de.lproj/Localizable.strings", "Permission denied.");
  open();
  EXPECT_EQ(log(), (Lines{"Da: German", "Lesefehler: Permission denied."}));
  EXPECT_EQ(systemLog().back(), "Error reading Localizable.strings: Permission denied.");
}

}  // namespace
}  // namespace glossmill
