#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <mutex>
#include <set>

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

/// Large enough that a second thread reads along.
class LargeXcodeScanTest : public XcodeScanTest {
 protected:
  static constexpr std::size_t kFiles = 150;
  static constexpr std::size_t kFillerBytes = 6000;

  LargeXcodeScanTest() {
    std::string children;
    std::string objects;
    const std::string filler = "/* " + std::string(kFillerBytes, '-') + " */\n";
    for (std::size_t number = 0; number < kFiles; ++number) {
      const std::string name = std::to_string(1000 + number);
      children += "S" + name + ", H" + name + ", T" + name + ", ";
      objects += "S" + name + " = { isa = PBXFileReference; path = S" + name + ".m; };\n";
      objects += "H" + name + " = { isa = PBXFileReference; path = H" + name + ".h; };\n";
      objects += "T" + name + " = { isa = PBXFileReference; path = en.lproj/T" + name + ".strings; };\n";
      m_files.addFile("/p/H" + name + ".h",
                      filler + "#define L" + name + "(key) NSLocalizedStringFromTable(key, @\"T" + name + "\", nil)\n");
      m_files.addFile("/p/S" + name + ".m", filler + "L" + name + "(@\"Hoist\"); NSLocalizedString(key, nil);\n");
      m_files.addFile("/p/en.lproj/T" + name + ".strings", filler + "Hoist = \"It " + name + "\";\nHoist = Again;\n");
    }
    m_files.addFile("/p/App.xcodeproj/project.pbxproj",
                    "{ objects = { P = { isa = PBXProject; mainGroup = G; };\nG = { isa = PBXGroup; children = (" +
                        children + "); };\n" + objects + "}; rootObject = P; }");
  }

  /// What a listener hears of, in its order.
  std::vector<std::string> heard() {
    std::vector<std::string> events;
    m_onEvent = [&events](const ScanEvent& event) {
      if (const auto* source = std::get_if<SourceBegins>(&event)) events.push_back(source->file.path());
      if (const auto* begins = std::get_if<StringsFileBegins>(&event)) events.push_back(begins->file.path());
      if (const auto* read = std::get_if<StringsFileRead>(&event)) events.push_back("read " + read->file.path());
    };
    scan();
    m_onEvent = [](const ScanEvent&) {};
    return events;
  }
};

TEST_F(LargeXcodeScanTest, RowsAndProblemsComeInTheSameOrderWhoeverReads) {
  const Lines rows = scan();
  ASSERT_EQ(rows.size(), kFiles);
  for (std::size_t number = 0; number < kFiles; ++number) {
    const std::string name = std::to_string(1000 + number);
    EXPECT_EQ(rows[number], "T" + name + " Hoist = Again") << number;
  }
  const Lines kinds = problems();
  ASSERT_EQ(kinds.size(), 2 * kFiles);
  EXPECT_EQ(kinds.front(), "/p/S1000.m key-not-literal");
  EXPECT_EQ(kinds.back(), "/p/en.lproj/T1149.strings repeated-key");
  EXPECT_TRUE(std::is_sorted(kinds.begin(), kinds.end()));
}

TEST_F(LargeXcodeScanTest, EventsComeInTheOrderOfTheFiles) {
  const Lines events = heard();
  ASSERT_EQ(events.size(), 4 * kFiles);
  EXPECT_EQ(events[0], "/p/H1000.h");
  EXPECT_EQ(events[kFiles], "/p/S1000.m");
  EXPECT_EQ(events[2 * kFiles], "/p/en.lproj/T1000.strings");
  EXPECT_EQ(events[2 * kFiles + 1], "read /p/en.lproj/T1000.strings");
  EXPECT_EQ(events.back(), "read /p/en.lproj/T1149.strings");
}

TEST_F(LargeXcodeScanTest, AStringsFileIsExpectedBeforeItIsRead) {
  std::set<std::string> known;
  std::mutex mutex;
  std::atomic<int> tooEarly = 0;
  m_onEvent = [&](const ScanEvent& event) {
    const std::lock_guard lock(mutex);
    if (const auto* expected = std::get_if<StringsFileExpected>(&event)) known.insert(expected->file.path());
    if (const auto* begins = std::get_if<StringsFileBegins>(&event)) known.insert(begins->file.path());
  };
  m_files.onOpen = [&](const std::string& path) {
    const std::lock_guard lock(mutex);
    if (path.ends_with(".strings") && known.count(path) == 0) ++tooEarly;
  };
  scan();
  EXPECT_EQ(known.size(), kFiles);
  EXPECT_EQ(tooEarly, 0);
}

TEST_F(LargeXcodeScanTest, ACancelEndsItAtTheSourceThatIsBeingRead) {
  std::size_t begun = 0;
  m_onEvent = [&](const ScanEvent& event) {
    if (std::holds_alternative<SourceBegins>(event) && ++begun == 100) m_canceled.set(true);
  };
  scan();
  EXPECT_EQ(begun, 100u);
}

TEST_F(LargeXcodeScanTest, AFileThatCannotBeReadIsReportedInItsPlace) {
  m_files.failOpening("/p/S1100.m", "No.");
  m_files.failOpening("/p/en.lproj/T1050.strings", "No.");
  EXPECT_EQ(scan().size(), kFiles);
  const Lines kinds = problems();
  EXPECT_EQ(std::count(kinds.begin(), kinds.end(), "/p/S1100.m source-unread"), 1);
  EXPECT_EQ(std::count(kinds.begin(), kinds.end(), "/p/en.lproj/T1050.strings strings-unread"), 1);
  EXPECT_EQ(kinds.size(), 2 * kFiles);
}

TEST_F(XcodeScanTest, WithoutATargetACallGoesToTheTableThatHoldsTheKeyOrTookItBefore) {
  m_files.addFile("/p/App.xcodeproj/project.pbxproj", R"({ objects = {
    P = { isa = PBXProject; mainGroup = G; };
    G = { isa = PBXGroup; children = (M, N, A, B); };
    M = { isa = PBXFileReference; path = a/Main.m; };
    N = { isa = PBXFileReference; path = b/Next.m; };
    A = { isa = PBXFileReference; path = a/en.lproj/Boats.strings; };
    B = { isa = PBXFileReference; path = b/en.lproj/Boats.strings; };
  }; rootObject = P; })");
  m_files.addFile("/p/a/Main.m",
                  "NSLocalizedStringFromTable(@\"Lower\", @\"Boats\", nil);"
                  "NSLocalizedStringFromTable(@\"New\", @\"Boats\", nil);");
  m_files.addFile("/p/b/Next.m", "NSLocalizedStringFromTable(@\"New\", @\"Boats\", nil);");
  m_files.addFile("/p/a/en.lproj/Boats.strings", "Hoist = 1;");
  m_files.addFile("/p/b/en.lproj/Boats.strings", "Lower = 2;");
  EXPECT_EQ(scan(), (Lines{"a/Boats New = New", "a/Boats Hoist = 1", "b/Boats Lower = 2"}));
}

}  // namespace
}  // namespace glossmill
