#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "app/AppDelegate.h"
#include "support/TestHost.h"

namespace glossmill {
namespace {

using Lines = std::vector<std::string>;

/// A project whose strings files are referenced one by one, read by xcode's rules.
class XcodeSaving : public testing::Test {
 protected:
  void addStrings(const std::string& path, const std::string& bytes) {
    m_host.files.addFile("/p/" + path, bytes);
    const std::string id = "F" + std::to_string(1000 + m_ids.size());
    m_ids.push_back(id);
    m_references += id + " = {isa = PBXFileReference; path = \"" + path + "\"; sourceTree = SOURCE_ROOT; };\n";
  }

  void addSource(const std::string& path, const std::string& bytes) { addStrings(path, bytes); }

  void open() {
    std::string children;
    for (const std::string& id : m_ids) children += id + ", ";
    m_host.files.addFile("/p/App.xcodeproj/project.pbxproj",
                         "{ objects = {\n" + m_references + "G = {isa = PBXGroup; children = (" + children +
                             "); sourceTree = \"<group>\"; };\n"
                             "P = {isa = PBXProject; developmentRegion = en; mainGroup = G; targets = (); };\n"
                             "}; rootObject = P; }\n");
    m_application.openProjectWindow();
    ProjectOptions options;
    options.rules = RuleSet::Xcode;
    project().openProjectAt(FileUrl("/p"), options);
    m_host.runUntilIdle();
    m_openedByScan = m_host.files.opened().size();
  }

  ProjectWindowController& project() { return *m_application.projectWindowController(); }

  void edit(const std::string& table, const std::string& key, const std::string& code,
            std::optional<std::string> text) {
    for (const std::shared_ptr<LocalizeString>& record : project().stringList()) {
      if (record->name() != key || record->tableRow()->table->id != table) continue;
      return project().applyEdit(EditKind::Import, editOf(record, LanguageCode(code), std::move(text)));
    }
    FAIL() << table << " has no " << key;
  }

  /// The files that were opened since the scan, each once.
  Lines openedSince() {
    Lines opened = m_host.files.opened();
    opened.erase(opened.begin(), opened.begin() + static_cast<std::ptrdiff_t>(m_openedByScan));
    std::erase_if(opened, [](const std::string& path) { return !path.starts_with("/p/"); });
    std::sort(opened.begin(), opened.end());
    opened.erase(std::unique(opened.begin(), opened.end()), opened.end());
    return opened;
  }

  Lines prepared() {
    Lines lines;
    for (const std::string& line : m_host.saves.operations()) {
      if (line.starts_with("prepare ")) lines.push_back(line.substr(8));
    }
    return lines;
  }

  TestHost m_host;
  AppDelegate m_application{m_host.parts()};
  Lines m_ids;
  std::string m_references;
  std::size_t m_openedByScan = 0;
};

TEST_F(XcodeSaving, OneEditReadsAndWritesOneFileOfAHundredTables) {
  for (int table = 0; table < 100; ++table) {
    for (const std::string code : {"de", "en", "ja"}) {
      addStrings("app" + std::to_string(table) + "/" + code + ".lproj/Boats.strings", "\"a\" = \"1\";\n");
    }
  }
  open();
  ASSERT_EQ(project().tables().size(), 100U);
  edit("app42/Boats", "a", "de", "x");
  EXPECT_TRUE(project().saveProject());
  EXPECT_EQ(openedSince(), Lines{"/p/app42/de.lproj/Boats.strings"});
  EXPECT_EQ(prepared(), Lines{"/p/app42/de.lproj/Boats.strings"});
  EXPECT_EQ(m_host.files.bytesOf("/p/app42/de.lproj/Boats.strings"), "\"a\" = \"x\";\n");
}

TEST_F(XcodeSaving, WithoutAnEditNoFileIsTouched) {
  addStrings("de.lproj/Boats.strings", "\"a\" = \"1\";\n");
  open();
  EXPECT_TRUE(project().saveProject());
  EXPECT_EQ(openedSince(), Lines());
  EXPECT_EQ(prepared(), Lines());
}

TEST_F(XcodeSaving, EveryEditMarksTheProjectUntilItIsSaved) {
  addStrings("de.lproj/Boats.strings", "\"a\" = \"1\";\n");
  open();
  EXPECT_FALSE(project().changed());
  edit("Boats", "a", "de", "2");
  EXPECT_TRUE(project().changed());
  project().saveLanguage(project().languagesList()->front());
  EXPECT_FALSE(project().changed());
  EXPECT_TRUE(project().saveProject());
  EXPECT_EQ(prepared().size(), 1U);
}

TEST_F(XcodeSaving, ClosingAsksWhetherToSave) {
  addStrings("de.lproj/Boats.strings", "\"a\" = \"1\";\n");
  open();
  edit("Boats", "a", "de", "2");
  m_host.panels.willAnswer(AlertAnswer::Other);
  EXPECT_FALSE(project().closeProject());
  const AlertRequest& question = m_host.panels.alerts.back();
  EXPECT_EQ(question.message, "Do you want to save the translations that you changed?");
  EXPECT_EQ(question.defaultButton, "Save");
  EXPECT_EQ(question.alternateButton, "Don't Save");
  EXPECT_EQ(question.otherButton, "Cancel");
}

TEST_F(XcodeSaving, WhatCouldNotBeWrittenStaysToBeSaved) {
  addStrings("de.lproj/Boats.strings", "\"a\" = \"1\";\nb");
  addStrings("ja.lproj/Boats.strings", "\"a\" = \"1\";\n");
  open();
  edit("Boats", "a", "de", "2");
  edit("Boats", "a", "ja", "2");
  EXPECT_FALSE(project().saveProject());
  EXPECT_TRUE(project().changed());
  EXPECT_EQ(m_host.files.bytesOf("/p/de.lproj/Boats.strings"), "\"a\" = \"1\";\nb");
  EXPECT_EQ(m_host.files.bytesOf("/p/ja.lproj/Boats.strings"), "\"a\" = \"2\";\n");
  ASSERT_EQ(m_host.panels.alerts.size(), 1U);
  EXPECT_EQ(m_host.panels.alerts.front().message, "Error saving Boats.strings for language German");
}

TEST_F(XcodeSaving, ANewFileIsToldOfAndBelongsToItsTable) {
  addStrings("en.lproj/Boats.strings", "\"a\" = \"1\";\n\"b\" = \"2\";\n");
  addStrings("de.lproj/Ships.strings", "\"c\" = \"3\";\n");
  open();
  edit("Boats", "a", "de", "x");
  EXPECT_TRUE(project().saveProject());
  ASSERT_EQ(m_host.panels.alerts.size(), 1U);
  EXPECT_EQ(m_host.panels.alerts.front().message,
            "Created a new Boats.strings for language German at:\n\n/p/de.lproj/Boats.strings\n\n"
            "Add it to the project in Xcode, as a localization beside those that the project has.");
  edit("Boats", "b", "de", "y");
  EXPECT_TRUE(project().saveProject());
  EXPECT_EQ(m_host.files.bytesOf("/p/de.lproj/Boats.strings"), "\"a\" = \"x\";\n\"b\" = \"y\";\n");
}

TEST_F(XcodeSaving, ALanguageWithoutANameIsToldByItsCode) {
  addStrings("en.lproj/Boats.strings", "\"a\" = \"1\";\n");
  addStrings("pt-BR.lproj/Ships.strings", "\"c\" = \"3\";\n");
  open();
  edit("Boats", "a", "pt-BR", "x");
  EXPECT_TRUE(project().saveProject());
  ASSERT_EQ(m_host.panels.alerts.size(), 1U);
  EXPECT_TRUE(m_host.panels.alerts.front().message.starts_with("Created a new Boats.strings for language pt-BR at:"));
}

TEST_F(XcodeSaving, WhatIsUndoneAfterASaveIsSavedAgain) {
  addStrings("de.lproj/Boats.strings", "\"a\" = \"1\";\n");
  open();
  edit("Boats", "a", "de", "2");
  project().saveProject();
  project().undo();
  EXPECT_TRUE(project().changed());
  EXPECT_TRUE(project().saveProject());
  EXPECT_EQ(m_host.files.bytesOf("/p/de.lproj/Boats.strings"), "\"a\" = \"1\";\n");
}

TEST_F(XcodeSaving, AFileThatSomebodyElseChangedIsNotOverwritten) {
  addStrings("de.lproj/Boats.strings", "\"a\" = \"1\";\n");
  open();
  m_host.files.addFile("/p/de.lproj/Boats.strings", "\"a\" = \"1\";\n\"b\" = \"2\";\n");
  edit("Boats", "a", "de", "2");
  m_host.panels.willAnswer(AlertAnswer::Default);
  EXPECT_FALSE(project().saveProject());
  EXPECT_EQ(m_host.files.bytesOf("/p/de.lproj/Boats.strings"), "\"a\" = \"1\";\n\"b\" = \"2\";\n");
  EXPECT_TRUE(project().changed());
}

TEST_F(XcodeSaving, ATableWithoutFilesAsksForItsDirectory) {
  addSource("Deck.m", "NSLocalizedStringFromTable(@\"a\", @\"Knots\", nil)");
  addStrings("de.lproj/Boats.strings", "\"a\" = \"1\";\n");
  open();
  edit("Knots", "a", "de", "x");
  m_host.panels.willCancelOpenPanel();
  EXPECT_FALSE(project().saveProject());
  EXPECT_TRUE(project().changed());
  ASSERT_FALSE(m_host.panels.alerts.empty());
  EXPECT_EQ(m_host.panels.alerts.back().message, "The table Knots was not saved");
  m_host.panels.willChoose("/p/rig");
  EXPECT_TRUE(project().saveProject());
  EXPECT_EQ(m_host.files.bytesOf("/p/rig/de.lproj/Knots.strings"), "\"a\" = \"x\";\n");
}

}  // namespace
}  // namespace glossmill
