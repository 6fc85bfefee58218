#include <gtest/gtest.h>

#include <functional>

#include "support/InMemoryFiles.h"
#include "xcode/XcodeScan.h"

namespace glossmill {
namespace {

constexpr std::string_view kProjectFile = R"({ objects = {
  P = { isa = PBXProject; mainGroup = G; targets = (T); developmentRegion = en; };
  G = { isa = PBXGroup; children = (M, E, D, R); };
  M = { isa = PBXFileReference; path = Main.m; };
  E = { isa = PBXFileReference; path = en.lproj/Boats.strings; };
  D = { isa = PBXFileReference; path = de.lproj/Boats.strings; };
  R = { isa = PBXFileReference; path = Libs/Kit.xcodeproj; };
}; rootObject = P; })";

class XcodeScanTest : public testing::Test, private ScanListener {
 protected:
  XcodeScanTest() {
    m_files.addFile("/p/App.xcodeproj/project.pbxproj", kProjectFile);
    m_files.addFile("/p/Main.m", "NSLocalizedStringFromTable(@\"Hoist\", @\"Boats\", nil);");
    m_files.addFile("/p/en.lproj/Boats.strings", "Hoist = \"Hoist it\";");
    m_files.addFile("/p/de.lproj/Boats.strings", "Hoist = Hissen;");
  }

  /// Rows as "table key = source".
  std::vector<std::string> scan() {
    m_result = ScanResult();
    const ScanInput input{m_files, m_isoTable, m_canceled, *this, m_options};
    readXcodeSources(FileUrl("/p"), input, m_memory, m_result);
    readXcodeStrings(input, m_result);
    std::vector<std::string> rows;
    for (const std::shared_ptr<LocalizeString>& record : m_result.stringList.records()) {
      const StoredText source = record->tableRow()->sourceText;
      rows.push_back(record->tableRow()->table->id + " " + record->name() + " = " +
                     std::string(source ? source.view() : "?"));
    }
    return rows;
  }

  std::vector<std::string> problems() const {
    std::vector<std::string> kinds;
    for (const Problem& problem : m_result.problems)
      kinds.push_back(problem.file.path() + " " + std::string(problem.kind));
    return kinds;
  }

  InMemoryFiles m_files;
  IsoTable m_isoTable;
  CancelFlag m_canceled;
  ProjectOptions m_options;
  ScanMemory m_memory;
  ScanResult m_result;
  std::function<void(const ScanEvent&)> m_onEvent = [](const ScanEvent&) {};

 private:
  void happened(const ScanEvent& event) override { m_onEvent(event); }
};

using Lines = std::vector<std::string>;

TEST_F(XcodeScanTest, JoinsCallsAndEntriesToRows) {
  EXPECT_EQ(scan(), (Lines{"Boats Hoist = Hoist it"}));
  EXPECT_EQ(m_memory.projectPackage, FileUrl("/p/App.xcodeproj"));
  ASSERT_EQ(m_result.languagesList->size(), 2u);
  EXPECT_EQ(m_result.languagesList->front()->iso639(), "de");
}

TEST_F(XcodeScanTest, AMissingProjectThatIsReferencedIsAProblem) {
  scan();
  EXPECT_EQ(problems(), (Lines{"/p/App.xcodeproj/project.pbxproj package-missing"}));
}

TEST_F(XcodeScanTest, AFileThatIsListedAndMissingIsNeverAskedFor) {
  m_files.remove("/p/Main.m");
  scan();
  EXPECT_EQ(problems(), (Lines{"/p/App.xcodeproj/project.pbxproj package-missing",
                               "/p/App.xcodeproj/project.pbxproj file-missing"}));
  for (const std::string& path : m_files.opened()) EXPECT_NE(path, "/p/Main.m");
}

TEST_F(XcodeScanTest, WhatIsExcludedIsNotThere) {
  m_options.xcode.exclude = {"de.lproj", "Libs", "Main.m"};
  EXPECT_EQ(scan(), (Lines{"Boats Hoist = Hoist it"}));
  EXPECT_TRUE(problems().empty());
  EXPECT_TRUE(m_result.fileList.empty());
  EXPECT_EQ(m_result.tables.front()->files.size(), 1u);
}

TEST_F(XcodeScanTest, AnUnreadableStringsFileIsNotToBeWritten) {
  m_files.failOpening("/p/de.lproj/Boats.strings", "It is locked.");
  scan();
  EXPECT_EQ(problems().back(), "/p/de.lproj/Boats.strings strings-unread");
  EXPECT_TRUE(m_result.tables.front()->find(LanguageCode("de"))->hasMistake);
  EXPECT_FALSE(m_result.tables.front()->find(LanguageCode("en"))->hasMistake);
}

TEST_F(XcodeScanTest, OtherPackagesMayBeChosen) {
  m_files.addFile("/p/deep/down/Other.xcodeproj/project.pbxproj", "{ objects = { P = { isa = PBXProject; }; }; }");
  m_options.xcode.packages = {FileUrl("/p/deep/down/Other.xcodeproj")};
  EXPECT_TRUE(scan().empty());
  EXPECT_EQ(m_result.packages, (std::vector<FileUrl>{FileUrl("/p/deep/down/Other.xcodeproj")}));
}

TEST_F(XcodeScanTest, LinksInCirclesDoNoHarm) {
  m_files.remove("/p/App.xcodeproj/project.pbxproj");
  m_files.addLink("/p/a/up", "/p");
  m_files.addLink("/p/b", "/p/a");
  EXPECT_TRUE(scan().empty());
  EXPECT_FALSE(m_memory.projectPackage);
}

TEST_F(XcodeScanTest, ACancelEndsEitherPhase) {
  m_onEvent = [this](const ScanEvent& event) {
    if (std::holds_alternative<SourceBegins>(event)) m_canceled.set(true);
  };
  EXPECT_TRUE(scan().empty());
  m_canceled.set(false);
  m_onEvent = [this](const ScanEvent& event) {
    if (std::holds_alternative<StringsFileBegins>(event)) m_canceled.set(true);
  };
  EXPECT_TRUE(scan().empty());
}

}  // namespace
}  // namespace glossmill
