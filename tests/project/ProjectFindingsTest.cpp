#include <gtest/gtest.h>

#include "checks/CheckList.h"
#include "project/ProjectFindings.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

using FindingLines = std::vector<std::string>;

/// "place severity check language key: sentence"
FindingLines linesOf(const std::vector<PlacedFinding>& findings) {
  FindingLines lines;
  for (const PlacedFinding& finding : findings) {
    std::string line = finding.file;
    line += ":" + std::to_string(finding.line) + ":" + std::to_string(finding.column) + " ";
    line += nameOf(finding.severity);
    line += " " + std::string(entryOf(finding.check).name) + " " + finding.language + " " + finding.key + ": ";
    lines.push_back(line + finding.sentence);
  }
  return lines;
}

/// A project that is open by the classic rules, and what is found in it.
class ProjectFindings : public testing::Test {
 protected:
  std::vector<PlacedFinding> findings(const FindingsWish& wish = {}) {
    return projectFindings(checkedProject(m_project.project(), m_settings), m_settings, wish, m_project.host.files);
  }

  /// A project file that names the sources.
  void addProjectFile(const std::string& region) {
    m_project.host.files.addFile(inProject("App.xcodeproj/project.pbxproj"),
                                 "Main.m Other.m\ndevelopmentRegion = " + region + ";");
  }

  TestProject m_project;
  CheckSettings m_settings;
};

TEST_F(ProjectFindings, WhatIsMissingStandsAtItsFirstCall) {
  m_project.addString("Ebb");
  m_project.addString("Flood tide");
  m_project.addLanguage("fr", "\"Flood tide\" = \"Flot\"");
  m_project.addLanguage("de", "\"Ebb\" = \"Ebbe\"");
  m_project.open();
  EXPECT_EQ(linesOf(findings()), (FindingLines{"Main.m:1:1 error missing fr Ebb: There is no translation.",
                                               "Main.m:2:1 error missing de Flood tide: There is no translation."}));
}

TEST_F(ProjectFindings, AreThoseOfTheWantedLanguagesAndChecks) {
  m_project.addString("The ebb tide is here");
  m_project.addLanguage("fr");
  m_project.addLanguage("de");
  m_project.addLanguage("it", "\"The ebb tide is here\" = \"The ebb tide is here\"");
  m_project.open();
  EXPECT_EQ(findings().size(), 3U);
  EXPECT_EQ(linesOf(findings({.checks = {}, .languages = {LanguageCode("fr")}})),
            (FindingLines{"Main.m:1:1 error missing fr The ebb tide is here: There is no translation."}));
  EXPECT_EQ(
      linesOf(findings({.checks = {Check::Identical}, .languages = {}})),
      (FindingLines{"it.lproj/Localizable.strings:1:1 info identical it The ebb tide is here: The translation is the "
                    "source text."}));
}

TEST_F(ProjectFindings, AboutATextStandAtItsEntryOfWhichTheLastCounts) {
  m_project.addString("%d files");
  m_project.addLanguage("de", "/* a\n */\n\"%d files\" = \"%d Dateien\";\n\n /* b */ \"%d files\" = \"%@ Dateien\";\n");
  m_project.open();
  EXPECT_EQ(
      linesOf(findings()),
      (FindingLines{"de.lproj/Localizable.strings:5:10 error format de %d files: “%@” takes another type than “%d” of "
                    "the source text.",
                    "de.lproj/Localizable.strings:5:10 error duplicate de %d files: The key stands on line 3 already, "
                    "with another text; the last one counts."}));
}

TEST_F(ProjectFindings, TellOfWhatTheReaderLeftOut) {
  m_project.addString("Ebb tide");
  m_project.addLanguage(
      "de", "\"Ebb tide\" = \"Ebbe\";\nnonsense\n\"Formerly\" = \"Früher\";\n\"comment\" = \"Kommentar\";\n");
  m_project.host.files.addFile(inProject("Other.m"),
                               "NSLocalizedString(@\"comment\", nil);\n  NSLocalizedString(title)");
  addProjectFile("en");
  m_project.open();
  EXPECT_EQ(
      linesOf(findings()),
      (FindingLines{"Other.m:1:1 info not-literal  : The call was not taken: its comment is no literal.",
                    "Other.m:2:3 info not-literal  : The call was not taken: its key is no literal.",
                    "de.lproj/Localizable.strings:2:1 error malformed de : The line is no entry that can be read: "
                    "“nonsense”.",
                    "de.lproj/Localizable.strings:3:1 info unused de Formerly: No source names the entry."}));
}

TEST_F(ProjectFindings, TellOfFilesThatCannotBeRead) {
  m_project.addString("Ebb tide");
  m_project.addLanguage("de", "\"Ebb tide\" = \"Ebbe\";\n");
  m_project.host.files.failOpening(stringsFileOf("de"), "It is locked.");
  m_project.open();
  EXPECT_EQ(linesOf(findings({.checks = {Check::Malformed}, .languages = {}})),
            (FindingLines{"de.lproj/Localizable.strings:0:0 error malformed de : It is locked."}));
}

TEST_F(ProjectFindings, CompareWithTheDevelopmentRegionOfTheProjectFile) {
  m_project.addString("count");
  m_project.addLanguage("en", "\"count\" = \"%d files\";\n");
  m_project.addLanguage("de", "\"count\" = \"%@ Dateien\";\n");
  addProjectFile("English");
  m_project.open();
  ASSERT_EQ(findings().size(), 1U);
  EXPECT_EQ(findings().front().check, Check::Format);
  EXPECT_EQ(findings().front().source, "%d files");
  EXPECT_EQ(findings().front().translation, "%@ Dateien");
  m_settings.sourceLanguage = "de";
  EXPECT_EQ(findings().front().source, "%@ Dateien");
  m_settings.sourceLanguage = "fr";
  EXPECT_EQ(findings().size(), 0U);
}

TEST_F(ProjectFindings, WhatSomebodyAcceptedCountsAgainWhenATextChanges) {
  m_project.addString("%d files");
  m_project.addLanguage("de", "\"%d files\" = \"Dateien\";\n");
  m_project.open();
  ASSERT_EQ(findings().size(), 1U);
  m_settings.accepted = {*acceptanceOf(findings().front())};
  EXPECT_EQ(findings().size(), 0U);
  m_project.setTranslation("%d files", "de", "Die Dateien");
  EXPECT_EQ(findings().size(), 1U);
}

TEST_F(ProjectFindings, AreCountedByLanguage) {
  m_project.addString("%d files");
  m_project.addString("The ebb tide is here");
  m_project.addLanguage("de", "\"%d files\" = \" Dateien\";\n");
  m_project.addLanguage("it", "\"%d files\" = \"%d file\";\n\"The ebb tide is here\" = \"The ebb tide is here\";\n");
  m_project.open();
  const auto counts = countsByLanguage(findings());
  EXPECT_EQ(counts, (std::map<std::string, FindingCounts>{{"de", {2, 1, 0}}, {"it", {0, 0, 1}}}));
}

TEST_F(ProjectFindings, OfACopyDoNotChangeWithTheProject) {
  m_project.addString("%d files");
  m_project.addLanguage("de", "\"%d files\" = \"Dateien\";\n");
  m_project.open();
  const CheckedProject copy = checkedProject(m_project.project(), m_settings);
  m_project.setTranslation("%d files", "de", "%d Dateien");
  EXPECT_EQ(projectFindings(copy, m_settings, {}, m_project.host.files).size(), 1U);
  EXPECT_EQ(findings().size(), 0U);
}

TEST_F(ProjectFindings, AStepDoesAPieceAndTheProgressGrows) {
  for (int row = 0; row < 5000; ++row) m_project.addString("key " + std::to_string(row));
  m_project.addLanguage("de", "\"key 1\" = \"key 1\";\n");
  m_project.addLanguage("fr", "\"key 4999\" = \"\a\";\n");
  m_project.open();
  const CheckedProject copy = checkedProject(m_project.project(), m_settings);
  FindingsRun run(copy, m_settings, {}, m_project.host.files);
  double before = run.progress();
  int steps = 0;
  for (; run.step(); ++steps) {
    EXPECT_GE(run.progress(), before);
    before = run.progress();
  }
  EXPECT_GE(steps, 6);
  EXPECT_EQ(run.progress(), 1.0);
  EXPECT_EQ(run.take().size(), 9999U);
}

/// The same by xcode's rules.
class XcodeFindings : public testing::Test {
 protected:
  void addFile(const std::string& path, const std::string& bytes) {
    m_host.files.addFile("/p/" + path, bytes);
    const std::string id = "F" + std::to_string(1000 + m_count++);
    m_references += id + " = {isa = PBXFileReference; path = \"" + path + "\"; sourceTree = SOURCE_ROOT; };\n";
    m_children += id + ", ";
  }

  std::vector<PlacedFinding> findings(const FindingsWish& wish = {}) {
    m_host.files.addFile("/p/App.xcodeproj/project.pbxproj",
                         "{ objects = {\n" + m_references + "G = {isa = PBXGroup; children = (" + m_children +
                             "); sourceTree = \"<group>\"; };\n"
                             "P = {isa = PBXProject; developmentRegion = en; mainGroup = G; targets = (); };\n"
                             "}; rootObject = P; }\n");
    m_application.openProjectWindow();
    ProjectOptions options;
    options.rules = RuleSet::Xcode;
    ProjectWindowController& project = *m_application.projectWindowController();
    project.openProjectAt(FileUrl("/p"), options);
    m_host.runUntilIdle();
    return projectFindings(checkedProject(project, {}), {}, wish, m_host.files);
  }

  TestHost m_host;
  AppDelegate m_application{m_host.parts()};
  int m_count = 0;
  std::string m_references;
  std::string m_children;
};

TEST_F(XcodeFindings, StandAtEntriesAndCalls) {
  addFile("a.m", "\n  NSLocalizedString(@\"k\", nil);\n  NSLocalizedString(title, nil);");
  addFile("en.lproj/Localizable.strings", "\"k\" = \"%d files\";\n\"never called\" = \"x\";\n");
  addFile("de.lproj/Localizable.strings", "\n \"k\" = \"Dateien\";\n\"k\" = \"Dateien\";");
  addFile("fr.lproj/Localizable.strings", "\"never called\" = ;");
  EXPECT_EQ(
      linesOf(findings()),
      (FindingLines{"a.m:2:3 error missing fr k: There is no translation.",
                    "a.m:3:3 info not-literal  : The key is no literal: title.",
                    "de.lproj/Localizable.strings:3:1 error format de k: “%d” of the source text is missing.",
                    "de.lproj/Localizable.strings:3:1 warning duplicate de k: The key stands on line 2 already, with "
                    "the same text.",
                    "en.lproj/Localizable.strings:2:1 info unused en never called: No source names the entry.",
                    "fr.lproj/Localizable.strings:1:18 error malformed fr : A text is missing behind “=”."}));
}

TEST_F(XcodeFindings, WhatNobodyCallsStandsInTheDevelopmentLanguage) {
  addFile("en.lproj/Main.strings", "\n\"5.title\" = \"Zoom\";");
  addFile("de.lproj/Main.strings", "");
  EXPECT_EQ(linesOf(findings()),
            (FindingLines{"en.lproj/Main.strings:2:1 error missing de 5.title: There is no translation."}));
}

TEST_F(XcodeFindings, AreThoseOfTheWantedTables) {
  for (const std::string name : {"Main", "Other"}) {
    addFile("en.lproj/" + name + ".strings", "\"5.title\" = \"Zoom %@\"; \"5.title\" = \"Zoom %@\";");
    addFile("de.lproj/" + name + ".strings", "\"5.title\" = \"Zoomen\";");
  }
  EXPECT_EQ(
      linesOf(findings({.checks = {}, .languages = {}, .tables = {"Other"}})),
      (FindingLines{"de.lproj/Other.strings:1:1 error format de 5.title: “%@” of the source text is missing.",
                    "en.lproj/Other.strings:1:24 warning duplicate en 5.title: The key stands on line 1 already, with "
                    "the same text."}));
}

}  // namespace
}  // namespace glossmill
