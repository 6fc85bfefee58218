#include "project/ScanTest.h"

namespace glossmill {
namespace {

constexpr const char* kGermanFile = "/P/Harbour.app/de.lproj/Localizable.strings";
constexpr const char* kFrenchFile = "/P/Harbour.app/fr.lproj/Localizable.strings";
constexpr const char* kFoundGerman = "Found Localizable.strings for Language: German";
constexpr const char* kFoundFrench = "Found Localizable.strings for Language: French";

/// The cancel button is pressed while something on the way of the scan waits for it, so it comes at a known moment.
class ScanCancel : public ScanTest {
 protected:
  ScanCancel() {
    addPackage("a.m z.m");
    addFile("Harbour.app/a.m", R"(NSLocalizedString(@"Open", @""); NSLocalizedString(1); NSLocalizedString(2))");
    addFile("Harbour.app/z.m", R"(NSLocalizedString(@"Close", @""))");
  }

  void addStrings(std::string_view code, std::string_view text) {
    addFile("Harbour.app/" + std::string(code) + ".lproj/Localizable.strings", text);
  }

  void cancelWhenListed(const std::string& path) {
    host.files.onList = [this, path](const std::string& listed) {
      if (listed == path) project().longTimeCanceled();
    };
  }

  void cancelWhenOpened(const std::string& path) {
    host.files.onOpen = [this, path](const std::string& opened) {
      if (opened == path) project().longTimeCanceled();
    };
  }

  void cancelWhenTitled(std::string_view title) {
    onTitle = [this, title](const std::string& shown) {
      if (shown == title) project().longTimeCanceled();
    };
  }

  void expectEmptyAndClosed() {
    expectNothingOpen();
    EXPECT_EQ(log(), Lines());
    EXPECT_FALSE(sheetIsUp());
    EXPECT_FALSE(sheet().window.isVisible);
    EXPECT_FALSE(project().longJobRunning());
    EXPECT_EQ(application.recentArray(), Lines());
  }

  void expectSheetLeftUp() {
    expectNothingOpen();
    EXPECT_TRUE(sheetIsUp());
    EXPECT_TRUE(sheet().window.isVisible);
    EXPECT_EQ(sheet().title.stringValue, "Parsing Localizable.strings ...");
    EXPECT_TRUE(sheet().indicator.isIndeterminate);
    EXPECT_TRUE(sheet().indicator.isAnimated);
    EXPECT_EQ(application.recentArray(), Lines());
  }
};

// ---- Phase one ----

TEST_F(ScanCancel, EmptiesTheProjectWhenThePackageIsLookedFor) {
  bool noPackage = false;
  whenLogged("Unable to find .xcodeproj file in given directory", [&noPackage] { noPackage = true; });
  cancelWhenListed("/P/Harbour.app");
  open();
  EXPECT_TRUE(noPackage);
  EXPECT_EQ(host.files.listed(), Lines{"/P/Harbour.app"});
  expectEmptyAndClosed();
}

TEST_F(ScanCancel, EmptiesTheProjectWhenTheTreeIsWalked) {
  cancelWhenListed("/P/Harbour.app/A.xcodeproj");
  open();
  EXPECT_EQ(host.files.opened(), Lines{"/P/Harbour.app/A.xcodeproj/project.pbxproj"});
  EXPECT_EQ(titles, Lines{"Parsing project directory..."});
  expectEmptyAndClosed();
}

TEST_F(ScanCancel, EmptiesTheLogOfPhaseOne) {
  addStrings("de", "");
  addStrings("fr", "");
  cancelWhenLogged(kFoundGerman);
  open();
  EXPECT_EQ(host.files.listed().back(), "/P/Harbour.app/de.lproj");
  expectEmptyAndClosed();
}

TEST_F(ScanCancel, DropsTheSourceThatIsBeingReadAndSaysNothingOfItsBadCalls) {
  cancelWhenOpened("/P/Harbour.app/a.m");
  open();
  EXPECT_EQ(systemLog(), Lines());
  EXPECT_EQ(host.files.opened().back(), "/P/Harbour.app/a.m");
  expectEmptyAndClosed();
}

TEST_F(ScanCancel, WritesNoBadCallBehindTheOneOfThatMoment) {
  cancelWhenLogged(
      "Bad formatted LocalizedString in file: a.m ignored\n    NSLocalizedString(1); NSLocalizedString(2)");
  open();
  EXPECT_EQ(systemLog(),
            Lines{"Ignoring bad formatted String: LocalizedString(NSLocalizedString(1); NSLocalizedString(2))"});
  expectEmptyAndClosed();
}

TEST_F(ScanCancel, EmptiesTheProjectBeforeAnythingOfItReachedTheMainThread) {
  EXPECT_TRUE(begin());
  project().longTimeCanceled();
  host.runUntilIdle();
  EXPECT_EQ(titles, Lines{"Parsing project directory..."});
  expectEmptyAndClosed();
}

TEST_F(ScanCancel, IsForgottenByTheNextScan) {
  cancelWhenListed("/P/Harbour.app/A.xcodeproj");
  open();
  host.files.onList = {};
  open();
  EXPECT_TRUE(project().opened());
  EXPECT_EQ(keys(), (Lines{"Open", "Close"}));
}

// ---- Phase two ----

TEST_F(ScanCancel, LeavesTheSheetUpBeforeTheFirstLanguage) {
  addStrings("de", "x");
  cancelWhenTitled("Parsing Localizable.strings ...");
  open();
  EXPECT_EQ(systemLog().back(), "Ignoring bad formatted String: LocalizedString(NSLocalizedString(2))");
  EXPECT_EQ(host.files.opened().back(), "/P/Harbour.app/z.m");
  expectSheetLeftUp();
}

TEST_F(ScanCancel, LeavesTheSheetUpWhenAStringsFileIsRead) {
  addStrings("de", "x\ny\n");
  addStrings("fr", "");
  cancelWhenOpened(kGermanFile);
  open();
  EXPECT_EQ(host.files.opened().back(), kGermanFile);
  EXPECT_EQ(systemLog().back(), "Lines: 3");
  EXPECT_EQ(log().back(), kFoundFrench);
  expectSheetLeftUp();
}

TEST_F(ScanCancel, LeavesTheSheetUpBehindTheMessageOfALine) {
  addStrings("de", "x\ny\n");
  cancelWhenLogged("Bad formattet String in Localizable.strings ignored\n    x");
  open();
  EXPECT_EQ(log().back(), "Bad formattet String in Localizable.strings ignored\n    x");
  EXPECT_EQ(systemLog().back(), "Bad formattet String in Localizable.strings ignored\n    x");
  expectSheetLeftUp();
}

TEST_F(ScanCancel, LeavesTheSheetUpWhenOnlyAnEmptyLineIsLeft) {
  addStrings("de", "x\n");
  cancelWhenLogged("Bad formattet String in Localizable.strings ignored\n    x");
  open();
  expectSheetLeftUp();
}

TEST_F(ScanCancel, LeavesTheSheetUpBehindAKeyWithoutAMatch) {
  addStrings("de", "\"x\" = \"y\";\n");
  cancelWhenLogged("String in Localizable.strings found with no match in source code\n    x");
  open();
  EXPECT_EQ(systemLog().back(), "String in Localizable.strings found with no match in Code:\nx");
  expectSheetLeftUp();
}

TEST_F(ScanCancel, LeavesTheSheetUpBetweenTwoLanguages) {
  addStrings("de", "x");
  addStrings("fr", "y");
  cancelWhenLogged("Bad formattet String in Localizable.strings ignored\n    x");
  open();
  EXPECT_EQ(host.files.opened().back(), kGermanFile);
  expectSheetLeftUp();
}

TEST_F(ScanCancel, KeepsTheLogWhenItLeavesTheSheetUp) {
  addStrings("de", "x\n");
  cancelWhenOpened(kGermanFile);
  open();
  EXPECT_EQ(log().size(), 3U);
  EXPECT_EQ(log().back(), kFoundGerman);
}

TEST_F(ScanCancel, LeavesASheetThatTheNextScanCloses) {
  addStrings("de", "\"Open\" = \"Auf\";");
  cancelWhenOpened(kGermanFile);
  open();
  expectSheetLeftUp();
  host.files.onOpen = {};
  open();
  EXPECT_TRUE(project().opened());
  EXPECT_FALSE(sheetIsUp());
  EXPECT_EQ(translation(0, "de"), "Auf");
}

// ---- About to install: nobody looks at the button any more but the main thread ----

TEST_F(ScanCancel, EmptiesTheProjectBehindTheLastLineOfTheLastLanguage) {
  addStrings("de", "\"Open\" = \"Auf\";\nx");
  cancelWhenLogged("Bad formattet String in Localizable.strings ignored\n    x");
  open();
  EXPECT_EQ(titles.back(), "Parsing Localizable.strings ...");
  expectEmptyAndClosed();
}

TEST_F(ScanCancel, EmptiesTheProjectBehindALastLanguageWithoutAStringsFile) {
  addStrings("de", "\"Open\" = \"Auf\";\n");
  addDirectory("Harbour.app/fr.lproj");
  cancelWhenLogged("Missing Localizable.strings for language: French");
  open();
  EXPECT_EQ(systemLog().back(), "Missing Localizable.strings for language: French");
  expectEmptyAndClosed();
}

TEST_F(ScanCancel, EmptiesTheProjectBehindALastLanguageThatCannotBeRead) {
  addStrings("de", "");
  addStrings("fr", "");
  host.files.failOpening(kFrenchFile, "Permission denied.");
  cancelWhenOpened(kFrenchFile);
  open();
  EXPECT_EQ(systemLog().back(), "Error reading Localizable.strings: Permission denied.");
  expectEmptyAndClosed();
}

TEST_F(ScanCancel, EmptiesTheProjectWhenThereIsNoLanguageToRead) {
  cancelWhenTitled("Parsing Localizable.strings ...");
  open();
  expectEmptyAndClosed();
}

}  // namespace
}  // namespace glossmill
