#include <gtest/gtest.h>

#include "xcode/SynchronizedFolder.h"

namespace glossmill {
namespace {

using Targets = std::vector<std::uint32_t>;

SynchronizedFolder::Exceptions exceptionsOf(std::uint32_t target, std::initializer_list<std::string_view> paths) {
  SynchronizedFolder::Exceptions exceptions;
  exceptions.target = target;
  for (const std::string_view path : paths) addException(exceptions, path);
  return exceptions;
}

/// Owned by 0 and 2.
SynchronizedFolder folderWith(std::vector<SynchronizedFolder::Exceptions> exceptions) {
  return {"App", {0, 2}, std::move(exceptions), {}};
}

TEST(SynchronizedFolder, ItsFilesBelongToItsOwners) {
  const SynchronizedFolder folder = folderWith({});
  EXPECT_EQ(folder.targetsOf("a/b.m", BuildPhase::Sources), (Targets{0, 2}));
  EXPECT_EQ(folder.targetsOf("de.lproj/a.strings", BuildPhase::Resources), (Targets{0, 2}));
  EXPECT_EQ(SynchronizedFolder().targetsOf("a.m", BuildPhase::Sources), Targets{});
}

TEST(SynchronizedFolder, OwnersLeaveExceptionsOutAndOthersTakeThemIn) {
  const SynchronizedFolder folder = folderWith({exceptionsOf(0, {"a/b.m", "c"}), exceptionsOf(1, {"a/b.m"})});
  EXPECT_EQ(folder.targetsOf("a/b.m", BuildPhase::Sources), (Targets{1, 2}));
  EXPECT_EQ(folder.targetsOf("a/b.mm", BuildPhase::Sources), (Targets{0, 2}));
  EXPECT_EQ(folder.targetsOf("b.m", BuildPhase::Sources), (Targets{0, 2}));
  EXPECT_EQ(folder.targetsOf("a", BuildPhase::Resources), (Targets{0, 2}));
}

TEST(SynchronizedFolder, ADirectoryStandsForAllThatIsInside) {
  const SynchronizedFolder folder = folderWith({exceptionsOf(0, {"a/b", "c/"})});
  EXPECT_EQ(folder.targetsOf("a/b/d/e.m", BuildPhase::Sources), (Targets{2}));
  EXPECT_EQ(folder.targetsOf("a/b/de.lproj/e.strings", BuildPhase::Resources), (Targets{2}));
  EXPECT_EQ(folder.targetsOf("c/e.m", BuildPhase::Sources), (Targets{2}));
  EXPECT_EQ(folder.targetsOf("a/bc.m", BuildPhase::Sources), (Targets{0, 2}));
}

TEST(SynchronizedFolder, LocalizedFilesAreNamedWithoutTheirLanguage) {
  for (const std::string_view prefix : {"/Localized: ", "/Localized/"}) {
    const std::string first = std::string(prefix) + "Texts/a.strings";
    const std::string second = std::string(prefix) + "b.strings";
    const SynchronizedFolder folder = folderWith({exceptionsOf(2, {first, second})});
    EXPECT_EQ(folder.targetsOf("Texts/de.lproj/a.strings", BuildPhase::Resources), (Targets{0}));
    EXPECT_EQ(folder.targetsOf("Texts/pt-BR.lproj/a.strings", BuildPhase::Resources), (Targets{0}));
    EXPECT_EQ(folder.targetsOf("de.lproj/b.strings", BuildPhase::Resources), (Targets{0}));
    EXPECT_EQ(folder.targetsOf("de.lproj/a.strings", BuildPhase::Resources), (Targets{0, 2}));
    EXPECT_EQ(folder.targetsOf("Texts/a.strings", BuildPhase::Resources), (Targets{0, 2}));
  }
}

TEST(SynchronizedFolder, APathWithALanguageInItMeansNothing) {
  const SynchronizedFolder folder = folderWith({exceptionsOf(0, {"de.lproj/a.strings", "de.lproj", "b/de.lproj/c"})});
  EXPECT_EQ(folder.targetsOf("de.lproj/a.strings", BuildPhase::Resources), (Targets{0, 2}));
  EXPECT_EQ(folder.targetsOf("b/de.lproj/c", BuildPhase::Resources), (Targets{0, 2}));
}

TEST(SynchronizedFolder, ExceptionsMayBeOfOnePhaseOnly) {
  SynchronizedFolder::Exceptions exceptions = exceptionsOf(0, {"a"});
  exceptions.phase = BuildPhase::Resources;
  const SynchronizedFolder folder = folderWith({exceptions});
  EXPECT_EQ(folder.targetsOf("a", BuildPhase::Resources), (Targets{2}));
  EXPECT_EQ(folder.targetsOf("a", BuildPhase::Sources), (Targets{0, 2}));
}

TEST(SynchronizedFolder, NothingInAnExplicitFolderIsCompiled) {
  SynchronizedFolder folder = folderWith({});
  folder.explicitFolders = {"Help"};
  EXPECT_EQ(folder.targetsOf("Help/a.m", BuildPhase::Sources), Targets{});
  EXPECT_EQ(folder.targetsOf("Help/de.lproj/a.strings", BuildPhase::Resources), (Targets{0, 2}));
  EXPECT_EQ(folder.targetsOf("Helper/a.m", BuildPhase::Sources), (Targets{0, 2}));
}

}  // namespace
}  // namespace glossmill
