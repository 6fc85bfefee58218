#include <gtest/gtest.h>

#include "support/RecordedProject.h"

namespace glossmill {
namespace {

/// Which of the two logs hears of something first, and what the project looks like at that moment.
class MessageOrder : public testing::Test {
 protected:
  MessageOrder() { harbour.addFile("A.xcodeproj/project.pbxproj", "Sea.m"); }

  void addSource(std::string_view text = R"(NSLocalizedString(@"Ebb", @"tide"))") { harbour.addFile("Sea.m", text); }
  void addGerman(std::string_view text) { harbour.addFile("de.lproj/Localizable.strings", text); }
  Lines logsOfScan() {
    harbour.open();
    return calls.linesOf({"log:", "system log:"});
  }

  RecordedProject harbour;
  CallRecorder& calls = harbour.calls;
  const std::string german = RecordedProject::stringsFile("de");
};

TEST_F(MessageOrder, OfASourceThatCannotBeRead) {
  addSource();
  harbour.disk().failOpening(RecordedProject::inProject("Sea.m"), "No.");
  const Lines expected = {
      "system log: Error reading source: file:///P/Harbour.app/Sea.m\\nNo.",
      "log: Error reading source: file:///P/Harbour.app/Sea.m",
  };
  EXPECT_TRUE(sameLines(logsOfScan(), expected));
}

TEST_F(MessageOrder, OfABadCall) {
  addSource("NSLocalizedString(1)");
  const Lines expected = {
      "log: Bad formatted LocalizedString in file: Sea.m ignored\\n    NSLocalizedString(1)",
      "system log: Ignoring bad formatted String: LocalizedString(NSLocalizedString(1))",
  };
  EXPECT_TRUE(sameLines(logsOfScan(), expected));
}

TEST_F(MessageOrder, OfAProjectFileThatCannotBeRead) {
  harbour.disk().failOpening(RecordedProject::inProject("A.xcodeproj/project.pbxproj"), "No.");
  const Lines expected = {
      "log: Unable to find .pbxproj file in given project file",
      "system log: Error open Xcode project file: No.",
  };
  EXPECT_TRUE(sameLines(logsOfScan(), expected));
}

TEST_F(MessageOrder, OfAMissingStringsFile) {
  harbour.addDirectory("de.lproj");
  const Lines expected = {
      "log: Missing Localizable.strings for language: German",
      "system log: Missing Localizable.strings for language: German",
  };
  EXPECT_TRUE(sameLines(logsOfScan(), expected));
}

TEST_F(MessageOrder, OfAStringsFileThatCannotBeRead) {
  addGerman("");
  harbour.disk().failOpening(german, "No.");
  const Lines expected = {
      "log: Found Localizable.strings for Language: German",
      "system log: Parsing file: file:///P/Harbour.app/de.lproj/Localizable.strings",
      "log: Error reading Localizable.strings: No.",
      "system log: Error reading Localizable.strings: No.",
  };
  EXPECT_TRUE(sameLines(logsOfScan(), expected));
}

TEST_F(MessageOrder, OfTheLinesOfAStringsFile) {
  addSource();
  addGerman("bad\n\"Flood\" = \"Flut\";\n\"Ebb\";\n\"Ebb\" = \"Ebbe\";");
  const Lines expected = {
      "log: Found Localizable.strings for Language: German",
      "system log: Parsing file: file:///P/Harbour.app/de.lproj/Localizable.strings",
      "system log: Lines: 4",
      "system log: Bad formattet String in Localizable.strings ignored\\n    bad",
      "log: Bad formattet String in Localizable.strings ignored\\n    bad",
      "log: String in Localizable.strings found with no match in source code\\n    Flood",
      "system log: String in Localizable.strings found with no match in Code:\\nFlood",
      "system log: Bad formattet String in Localizable.strings ignored\\n    \";",
      "log: Bad formattet String in Localizable.strings ignored\\n    \";",
  };
  EXPECT_TRUE(sameLines(logsOfScan(), expected));
}

TEST_F(MessageOrder, NamesAStringsFileBeforeItIsReadAndItsLinesAfterwards) {
  addGerman("");
  harbour.open();
  const Lines expected = {
      "system log: Parsing file: file:///P/Harbour.app/de.lproj/Localizable.strings",
      "files: open /P/Harbour.app/de.lproj/Localizable.strings",
      "files: read /P/Harbour.app/de.lproj/Localizable.strings",
      "system log: Lines: 1",
  };
  EXPECT_TRUE(sameLines(calls.linesOf({"system log:", "files: open " + german, "files: read " + german}), expected));
}

TEST_F(MessageOrder, TellsOfAStringsFileBeforeTheLanguageHasIt) {
  addGerman("");
  std::string url;
  std::int64_t depth = 0;
  calls.when("log: Found Localizable.strings for Language: German", [&] {
    url = harbour.project->actualLanguage()->localizedStringUrl().path();
    depth = harbour.project->actualLanguage()->urlDepth();
  });
  harbour.open();
  EXPECT_EQ(url, RecordedProject::inProject("de.lproj"));
  EXPECT_EQ(depth, 2);
  EXPECT_EQ(harbour.language(0)->localizedStringUrl().path(), german);
}

TEST_F(MessageOrder, TellsOfAnOldNameBeforeThereIsALanguage) {
  harbour.addDirectory("German.lproj");
  bool wasThere = true;
  calls.when("log: Changing old language description: German to ISO639: de",
             [&] { wasThere = harbour.project->actualLanguage() != nullptr; });
  harbour.open();
  EXPECT_FALSE(wasThere);
}

TEST_F(MessageOrder, KnowsWhichSourceItIsInBeforeItReadsIt) {
  addSource();
  std::string name;
  calls.when("files: read /P/Harbour.app/Sea.m",
             [&] { name = harbour.project->actualParseFileName().lastPathComponent(); });
  harbour.open();
  EXPECT_EQ(name, "Sea.m");
}

TEST_F(MessageOrder, KnowsWhichSourceItIsInAlsoWhenItCannotBeRead) {
  addSource();
  harbour.disk().failOpening(RecordedProject::inProject("Sea.m"), "No.");
  std::string name;
  calls.when("system log: Error reading source: file:///P/Harbour.app/Sea.m\\nNo.",
             [&] { name = harbour.project->actualParseFileName().lastPathComponent(); });
  harbour.open();
  EXPECT_EQ(name, "Sea.m");
  EXPECT_EQ(harbour.project->fileList().size(), 1U);
}

}  // namespace
}  // namespace glossmill
