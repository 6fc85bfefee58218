#include <gtest/gtest.h>

#include <algorithm>

#include "xcode/ProjectFile.h"

namespace glossmill {
namespace {

using Targets = std::vector<std::uint32_t>;
using Paths = std::vector<std::string>;

/// A project P with the targets T and U and the group G, and the objects given. `settings` are those of the project.
ProjectFile readObjects(const std::string& objects, const std::string& settings = "") {
  ProjectFile file =
      readProjectFile(PropertyList("// !$*UTF8*$!\n{ objects = { P = { isa = PBXProject; mainGroup = G; "
                                   "targets = (T, U); " +
                                   settings + " }; " + objects + " }; rootObject = P; }"));
  EXPECT_FALSE(file.error) << file.error->sentence;
  return file;
}

std::string group(const std::string& id, const std::string& children, const std::string& path = "") {
  const std::string where = path.empty() ? "name = Name;" : "path = \"" + path + "\";";
  return id + " = { isa = PBXGroup; children = (" + children + "); sourceTree = \"<group>\"; " + where + " }; ";
}

std::string reference(const std::string& id, const std::string& path, const std::string& more = "") {
  return id + " = { isa = PBXFileReference; path = \"" + path + "\"; sourceTree = \"<group>\"; " + more + " }; ";
}

std::string target(const std::string& id, const std::string& phases, const std::string& more = "") {
  return id + " = { isa = PBXNativeTarget; name = \"Target " + id + "\"; buildPhases = (" + phases + "); " + more +
         "}; ";
}

/// A phase and the build files for these references.
std::string phase(const std::string& id, const std::string& kind, const std::vector<std::string>& references) {
  std::string files;
  std::string objects;
  for (const std::string& fileReference : references) {
    const std::string buildFile = id + "_" + fileReference;
    files += buildFile + ", ";
    objects += buildFile + " = { isa = PBXBuildFile; fileRef = " + fileReference + "; }; ";
  }
  return objects + id + " = { isa = PBX" + kind + "BuildPhase; files = (" + files + "); }; ";
}

Paths pathsOf(const ProjectFile& file) {
  Paths paths;
  for (const ProjectFile::File& one : file.files) paths.push_back(one.path);
  return paths;
}

const ProjectFile::File& fileAt(const ProjectFile& file, const std::string& path) {
  const auto found =
      std::find_if(file.files.begin(), file.files.end(), [&](const auto& one) { return one.path == path; });
  if (found != file.files.end()) return *found;
  ADD_FAILURE() << path;
  static const ProjectFile::File none;
  return none;
}

TEST(ProjectFile, PathsAddUpAlongTheGroups) {
  const ProjectFile file = readObjects(group("G", "a, H") + group("H", "b, I", "Sources") + group("I", "c") +
                                       reference("a", "a.m") + reference("b", "b.m") + reference("c", "Deep/../c.m"));
  EXPECT_EQ(pathsOf(file), (Paths{"a.m", "Sources/b.m", "Sources/c.m"}));
}

TEST(ProjectFile, EachSourceTreeHasItsOwnBeginning) {
  const std::string objects = group("G", "H, J") + group("H", "a, b, c, d, I", "Sources") +
                              "a = { isa = PBXFileReference; path = a.m; sourceTree = SOURCE_ROOT; };"
                              "b = { isa = PBXFileReference; path = /usr/b.m; sourceTree = \"<absolute>\"; };"
                              "c = { isa = PBXFileReference; path = c.h; sourceTree = SDKROOT; };"
                              "d = { isa = PBXFileReference; path = d.m; };"
                              "I = { isa = PBXGroup; path = Other; sourceTree = SOURCE_ROOT; children = (e); };"
                              "J = { isa = PBXGroup; path = lib; sourceTree = DEVELOPER_DIR; children = (f, g); };"
                              "g = { isa = PBXFileReference; path = g.m; sourceTree = SOURCE_ROOT; };" +
                              reference("e", "e.m") + reference("f", "f.m");
  EXPECT_EQ(pathsOf(readObjects(objects)), (Paths{"a.m", "/usr/b.m", "Sources/d.m", "Other/e.m", "g.m"}));
  EXPECT_EQ(pathsOf(readObjects(objects, "projectDirPath = ../src; projectRoot = x;")),
            (Paths{"../src/a.m", "/usr/b.m", "../src/Sources/d.m", "../src/Other/e.m", "../src/g.m"}));
}

TEST(ProjectFile, TellsWhatTheProjectSaysOfItself) {
  const ProjectFile file = readObjects("",
                                       "developmentRegion = English; knownRegions = (en, \"pt-BR\", Base); "
                                       "projectDirPath = \"./a/\"; projectRoot = \"../b\";");
  EXPECT_EQ(file.developmentRegion, "English");
  EXPECT_EQ(file.knownRegions, (Paths{"en", "pt-BR", "Base"}));
  EXPECT_EQ(file.sourceRoot, "a");
  EXPECT_EQ(file.projectRoot, "../b");
}

TEST(ProjectFile, TellsTypeAndEncodingOfAFile) {
  const ProjectFile file = readObjects(
      group("G", "a, b, c, d") +
      reference("a", "a.strings", "fileEncoding = 10; lastKnownFileType = text.plist.strings;") +
      reference("b", "b.m",
                "fileEncoding = \"-2147483632\"; lastKnownFileType = text; explicitFileType = sourcecode.c.objc;") +
      reference("c", "c", "lastKnownFileType = folder; fileEncoding = \"\";") +
      reference("d", "d", "fileEncoding = 4x;"));
  EXPECT_EQ(fileAt(file, "a.strings").encoding, 10U);
  EXPECT_EQ(fileAt(file, "a.strings").type, "text.plist.strings");
  EXPECT_EQ(fileAt(file, "b.m").encoding, 0x80000010U);
  EXPECT_EQ(fileAt(file, "b.m").type, "sourcecode.c.objc");
  EXPECT_EQ(fileAt(file, "c").type, "folder");
  EXPECT_EQ(fileAt(file, "c").encoding, std::nullopt);
  EXPECT_EQ(fileAt(file, "d").encoding, std::nullopt);
}

TEST(ProjectFile, TellsWhichTargetsCompileAndCopyAFile) {
  const ProjectFile file =
      readObjects(group("G", "a, b, c") + reference("a", "a.m") + reference("b", "b.strings") + reference("c", "c.m") +
                  target("T", "S, R") + target("U", "S2, F") + phase("S", "Sources", {"a", "a"}) +
                  phase("R", "Resources", {"b"}) + phase("S2", "Sources", {"a"}) + phase("F", "Frameworks", {"c"}));
  EXPECT_EQ(file.targets, (Paths{"Target T", "Target U"}));
  EXPECT_EQ(file.targetsOf(fileAt(file, "a.m"), BuildPhase::Sources), (Targets{0, 1}));
  EXPECT_EQ(file.targetsOf(fileAt(file, "a.m"), BuildPhase::Resources), Targets{});
  EXPECT_EQ(file.targetsOf(fileAt(file, "b.strings"), BuildPhase::Resources), (Targets{0}));
  EXPECT_EQ(file.targetsOf(fileAt(file, "c.m"), BuildPhase::Sources), Targets{});
}

TEST(ProjectFile, AVariantGroupStandsForTheFilesInIt) {
  const ProjectFile file =
      readObjects(group("G", "V, W", "App") +
                  "V = { isa = PBXVariantGroup; children = (de, fr); name = a.strings; sourceTree = \"<group>\"; };"
                  "W = { isa = XCVersionGroup; children = (m); path = M.xcdatamodeld; sourceTree = \"<group>\"; };" +
                  reference("de", "de.lproj/a.strings") + reference("fr", "fr.lproj/a.strings") +
                  reference("m", "M.xcdatamodel") + target("T", "R, S") + target("U", "R2") +
                  phase("R", "Resources", {"V"}) + phase("R2", "Resources", {"de"}) + phase("S", "Sources", {"W"}));
  EXPECT_EQ(file.targetsOf(fileAt(file, "App/de.lproj/a.strings"), BuildPhase::Resources), (Targets{0, 1}));
  EXPECT_EQ(file.targetsOf(fileAt(file, "App/fr.lproj/a.strings"), BuildPhase::Resources), (Targets{0}));
  EXPECT_EQ(file.targetsOf(fileAt(file, "App/M.xcdatamodeld/M.xcdatamodel"), BuildPhase::Sources), (Targets{0}));
}

TEST(ProjectFile, APhaseMayHoldWhatNoGroupDoes) {
  const ProjectFile file =
      readObjects(group("G", "") + reference("a", "a.m") + target("T", "S") + phase("S", "Sources", {"a"}));
  EXPECT_EQ(pathsOf(file), (Paths{"a.m"}));
  EXPECT_EQ(file.targetsOf(file.files[0], BuildPhase::Sources), (Targets{0}));
}

TEST(ProjectFile, OldKindsOfTargetsDoAsWell) {
  const ProjectFile file = readObjects(group("G", "a") + reference("a", "a.m") + phase("S", "Sources", {"a"}) +
                                       "T = { isa = PBXApplicationTarget; name = Old; buildPhases = (S); };");
  EXPECT_EQ(file.targetsOf(fileAt(file, "a.m"), BuildPhase::Sources), (Targets{0}));
}

TEST(ProjectFile, ReferencedProjectsAreNamedOnce) {
  const ProjectFile file = readObjects(
      group("G", "H, a, p, q") + group("H", "r", "Libraries") + reference("a", "a.m") +
          reference("p", "P.xcodeproj", "lastKnownFileType = \"wrapper.pb-project\";") +
          reference("q", "./P.xcodeproj", "lastKnownFileType = \"wrapper.pb-project\";") +
          reference("r", "../Q.xcodeproj", "lastKnownFileType = \"wrapper.pb-project\";") +
          reference("s", "S.xcodeproj"),
      "projectReferences = ({ ProductGroup = X; ProjectRef = r; }, { ProductGroup = Y; ProjectRef = s; });");
  EXPECT_EQ(file.projects, (Paths{"Q.xcodeproj", "P.xcodeproj", "S.xcodeproj"}));
}

TEST(ProjectFile, ReadsSynchronizedFolders) {
  const ProjectFile file = readObjects(
      group("G", "H") + group("H", "F", "Sources") +
      "F = { isa = PBXFileSystemSynchronizedRootGroup; path = App; sourceTree = \"<group>\"; exceptions = (E, K); "
      "explicitFolders = (Help); };"
      "E = { isa = PBXFileSystemSynchronizedBuildFileExceptionSet; target = U; membershipExceptions = "
      "(\"a b.m\", \"/Localized: c.strings\"); };"
      "K = { isa = PBXFileSystemSynchronizedGroupBuildPhaseMembershipExceptionSet; buildPhase = R; "
      "membershipExceptions = (d.strings); };" +
      target("T", "R", "fileSystemSynchronizedGroups = (F);") + target("U", "") + phase("R", "Resources", {}));
  ASSERT_EQ(file.folders.size(), 1U);
  const SynchronizedFolder& folder = file.folders[0];
  EXPECT_EQ(folder.path, "Sources/App");
  EXPECT_EQ(folder.explicitFolders, (Paths{"Help"}));
  EXPECT_EQ(folder.targetsOf("a.m", BuildPhase::Sources), (Targets{0}));
  EXPECT_EQ(folder.targetsOf("a b.m", BuildPhase::Sources), (Targets{0, 1}));
  EXPECT_EQ(folder.targetsOf("de.lproj/c.strings", BuildPhase::Resources), (Targets{0, 1}));
  EXPECT_EQ(folder.targetsOf("d.strings", BuildPhase::Resources), Targets{});
  EXPECT_EQ(folder.targetsOf("d.strings", BuildPhase::Sources), (Targets{0}));
}

TEST(ProjectFile, GroupsThatHoldThemselvesDoNoHarm) {
  const ProjectFile file =
      readObjects(group("G", "H, G") + group("H", "G, H, a, I", "b") + group("I", "H, a", "c") + reference("a", "a.m"));
  EXPECT_EQ(pathsOf(file), (Paths{"b/a.m"}));
}

TEST(ProjectFile, ManyLevelsOfGroupsAreTaken) {
  std::string objects = group("G", "g0");
  for (int level = 0; level < 100000; ++level) {
    objects += group("g" + std::to_string(level), "g" + std::to_string(level + 1));
  }
  EXPECT_EQ(pathsOf(readObjects(objects + reference("g100000", "a.m"))), (Paths{"a.m"}));
}

TEST(ProjectFile, WhatLiesTooDeepIsLeftOut) {
  std::string objects = group("G", "b, g0") + reference("b", "b.m");
  for (int level = 0; level < 30; ++level) {
    objects += group("g" + std::to_string(level), "g" + std::to_string(level + 1), std::string(50, 'x'));
  }
  EXPECT_EQ(pathsOf(readObjects(objects + reference("g30", "a.m"))), (Paths{"b.m"}));
}

TEST(ProjectFile, MissingObjectsAreLeftOut) {
  const ProjectFile file =
      readObjects(group("G", "x, a, y") + reference("a", "a.m") + target("T", "z, S") +
                  "S = { isa = PBXSourcesBuildPhase; files = (w, B); }; B = { isa = PBXBuildFile; };");
  EXPECT_EQ(pathsOf(file), (Paths{"a.m"}));
  EXPECT_EQ(file.targets, (Paths{"Target T"}));
}

TEST(ProjectFile, AFileThatCannotBeParsedIsToldWithItsLine) {
  const ProjectFile file = readProjectFile(PropertyList("{\n objects = {\n a = b\n c = d;\n};\n}"));
  ASSERT_TRUE(file.error);
  EXPECT_EQ(*file.error, (SyntaxError{{3, 7}, "“;” is missing behind a value."}));
  EXPECT_TRUE(file.files.empty());
}

TEST(ProjectFile, AListWithoutAProjectIsAnError) {
  EXPECT_EQ(readProjectFile(PropertyList("{ objects = { }; }")).error,
            (SyntaxError{{1, 1}, "The file holds no project."}));
  EXPECT_TRUE(readProjectFile(PropertyList("(a)")).error);
}

TEST(ProjectFile, TheProjectIsFoundThoughTheRootNamesAnother) {
  const ProjectFile file = readProjectFile(
      PropertyList("{ objects = { P = { isa = PBXProject; developmentRegion = en; }; }; rootObject = Q; }"));
  EXPECT_FALSE(file.error);
  EXPECT_EQ(file.developmentRegion, "en");
}

TEST(ProjectFile, MayBeXml) {
  const ProjectFile file = readProjectFile(PropertyList(
      "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>objects</key><dict>"
      "<key>P</key><dict><key>isa</key><string>PBXProject</string><key>mainGroup</key><string>G</string></dict>"
      "<key>G</key><dict><key>isa</key><string>PBXGroup</string><key>children</key><array><string>a</string></array>"
      "<key>sourceTree</key><string>&lt;group&gt;</string></dict>"
      "<key>a</key><dict><key>isa</key><string>PBXFileReference</string><key>path</key><string>a.m</string>"
      "<key>fileEncoding</key><integer>30</integer></dict></dict>"
      "<key>rootObject</key><string>P</string></dict></plist>"));
  EXPECT_EQ(pathsOf(file), (Paths{"a.m"}));
  EXPECT_EQ(fileAt(file, "a.m").encoding, 30U);
}

}  // namespace
}  // namespace glossmill
