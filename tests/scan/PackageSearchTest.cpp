#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "scan/PackageSearch.h"
#include "support/InMemoryFiles.h"

namespace glossmill {
namespace {

using Names = std::vector<std::string>;

/// The path of the package below /P, "none" without one.
std::string packageIn(InMemoryFiles& files) {
  const std::optional<FileUrl> package = findProjectPackage(files, FileUrl("/P"), CancelFlag());
  return package ? package->path() : "none";
}

std::string packageAmong(const Names& directories) {
  InMemoryFiles files;
  for (const std::string& directory : directories) files.addDirectory("/P/" + directory);
  return packageIn(files);
}

TEST(PackageSearch, EndsWhereLinksMakeATreeEndless) {
  InMemoryFiles files;
  for (int inner = 0; inner < 199; ++inner) files.addDirectory("/elsewhere/" + std::to_string(1000 + inner));
  for (int link = 0; link < 102; ++link) files.addLink("/P/link" + std::to_string(1000 + link), "/elsewhere");
  files.addDirectory("/P/z/A.xcodeproj");
  std::vector<FileUrl> cutOff;
  const auto note = [&cutOff](const FileUrl& directory) { cutOff.push_back(directory); };
  EXPECT_EQ(findProjectPackage(files, FileUrl("/P"), CancelFlag(), note), FileUrl("/P/z/A.xcodeproj"));
  EXPECT_EQ(cutOff, std::vector{FileUrl("/P/link1100")});
  EXPECT_EQ(files.listed().size(), 20'002U);
}

TEST(PackageSearch, FindsAPackageInTheDirectory) {
  EXPECT_EQ(packageAmong({"Harbour.xcodeproj"}), "/P/Harbour.xcodeproj");
}

TEST(PackageSearch, FindsAPackageDeepBelow) {
  EXPECT_EQ(packageAmong({"a/b/c", "a/d/e/Harbour.xcodeproj"}), "/P/a/d/e/Harbour.xcodeproj");
}

TEST(PackageSearch, PrefersAPackageInASubdirectoryThatIsListedBefore) {
  EXPECT_EQ(packageAmong({"A/C.xcodeproj", "B.xcodeproj"}), "/P/A/C.xcodeproj");
}

TEST(PackageSearch, PrefersAPackageThatIsListedBeforeASubdirectory) {
  EXPECT_EQ(packageAmong({"A.xcodeproj", "B/C.xcodeproj"}), "/P/A.xcodeproj");
}

TEST(PackageSearch, TakesTheFirstOfSeveralPackages) {
  EXPECT_EQ(packageAmong({"C.xcodeproj", "B.xcodeproj"}), "/P/B.xcodeproj");
}

TEST(PackageSearch, FindsNothingInDirectoriesWithoutAPackage) {
  EXPECT_EQ(packageAmong({}), "none");
  EXPECT_EQ(packageAmong({"a", "b/c"}), "none");
}

TEST(PackageSearch, ComparesTheExtensionExactly) {
  EXPECT_EQ(packageAmong({"A.Xcodeproj", "B.xcodeproj2", "C.xcodeproj.bak", "xcodeproj"}), "none");
}

TEST(PackageSearch, PassesOverFilesAndHiddenDirectories) {
  InMemoryFiles files;
  files.addFile("/P/A.xcodeproj", "");
  files.addDirectory("/P/.git/B.xcodeproj");
  files.addDirectory("/P/.C.xcodeproj");
  EXPECT_EQ(packageIn(files), "none");
}

TEST(PackageSearch, LooksIntoPackagesOfOtherKindsAndBuildFolders) {
  EXPECT_EQ(packageAmong({"A.xcworkspace/build/B.xcodeproj"}), "/P/A.xcworkspace/build/B.xcodeproj");
}

TEST(PackageSearch, DoesNotTakeTheChosenDirectoryItself) {
  InMemoryFiles files;
  files.addDirectory("/P.xcodeproj/inner");
  EXPECT_EQ(findProjectPackage(files, FileUrl("/P.xcodeproj"), CancelFlag()), std::nullopt);
}

TEST(PackageSearch, PassesOverADirectoryThatCannotBeListed) {
  InMemoryFiles files;
  files.addDirectory("/P/a/A.xcodeproj");
  files.addDirectory("/P/b/B.xcodeproj");
  files.failListing("/P/a", "Permission denied.");
  EXPECT_EQ(packageIn(files), "/P/b/B.xcodeproj");
}

TEST(PackageSearch, FindsNothingInADirectoryThatDoesNotExist) {
  InMemoryFiles files;
  EXPECT_EQ(packageIn(files), "none");
}

TEST(PackageSearch, DoesNotLookFurtherThanThePackage) {
  InMemoryFiles files;
  files.addDirectory("/P/a");
  files.addDirectory("/P/b/B.xcodeproj/inner");
  files.addDirectory("/P/c");
  EXPECT_EQ(packageIn(files), "/P/b/B.xcodeproj");
  EXPECT_EQ(files.listed(), (Names{"/P", "/P/a", "/P/b"}));
}

TEST(PackageSearch, TakesAPackageThatIsALink) {
  InMemoryFiles files;
  files.addDirectory("/elsewhere");
  files.addLink("/P/A.xcodeproj", "/elsewhere");
  EXPECT_EQ(packageIn(files), "/P/A.xcodeproj");
}

TEST(PackageSearch, FollowsLinksToOtherDirectories) {
  InMemoryFiles files;
  files.addDirectory("/elsewhere/A.xcodeproj");
  files.addLink("/P/a", "/elsewhere");
  EXPECT_EQ(packageIn(files), "/P/a/A.xcodeproj");
}

TEST(PackageSearch, DoesNotFollowALinkBackToADirectoryAroundIt) {
  InMemoryFiles files;
  files.addLink("/P/a/top", "/P");
  files.addLink("/P/a/here", ".");
  files.addLink("/P/broken", "nowhere");
  EXPECT_EQ(packageIn(files), "none");
  EXPECT_EQ(files.listed(), (Names{"/P", "/P/a"}));
}

TEST(PackageSearch, PassesOverADirectoryThatCannotBeSearched) {
  InMemoryFiles files;
  files.addDirectory("/P/a/A.xcodeproj");
  files.addDirectory("/P/b/B.xcodeproj");
  files.makeUnsearchable("/P/a");
  EXPECT_EQ(packageIn(files), "/P/b/B.xcodeproj");
}

TEST(PackageSearch, PassesOverAPackageThatIsGoneOrAFileByNow) {
  InMemoryFiles files;
  for (const char* path : {"/P/a", "/P/b.xcodeproj", "/P/c.xcodeproj", "/P/d.xcodeproj"}) files.addDirectory(path);
  files.onList = [&files](const std::string& path) {
    if (path != "/P/a") return;
    files.remove("/P/b.xcodeproj");
    files.addFile("/P/c.xcodeproj", "");
  };
  EXPECT_EQ(packageIn(files), "/P/d.xcodeproj");
}

TEST(PackageSearch, TakesAPackageThatWasABrokenLinkOrAFile) {
  for (const char* package : {"/P/b.xcodeproj", "/P/c.xcodeproj"}) {
    InMemoryFiles files;
    files.addDirectory("/P/a");
    files.addLink("/P/b.xcodeproj", "/elsewhere");
    files.addFile("/P/c.xcodeproj", "");
    files.onList = [&files, package](const std::string& path) {
      if (path == "/P/a") files.remove(package), files.addDirectory(package);
    };
    EXPECT_EQ(packageIn(files), package);
  }
}

TEST(PackageSearch, AsksOnlyAboutThePackage) {
  InMemoryFiles files;
  files.addFile("/P/a/b.m", "");
  files.addDirectory("/P/c/d");
  files.addDirectory("/P/e/E.xcodeproj");
  EXPECT_EQ(packageIn(files), "/P/e/E.xcodeproj");
  EXPECT_EQ(files.askedKinds(), Names{"/P/e/E.xcodeproj"});
}

TEST(PackageSearch, FindsNothingAfterACancel) {
  InMemoryFiles files;
  files.addDirectory("/P/A.xcodeproj");
  CancelFlag canceled;
  canceled.set(true);
  EXPECT_EQ(findProjectPackage(files, FileUrl("/P"), canceled), std::nullopt);
}

TEST(PackageSearch, StopsAtTheNextEntryAfterACancel) {
  InMemoryFiles files;
  files.addDirectory("/P/a/b");
  files.addDirectory("/P/c/C.xcodeproj");
  CancelFlag canceled;
  files.onList = [&canceled](const std::string& path) { canceled.set(path == "/P/a"); };
  EXPECT_EQ(findProjectPackage(files, FileUrl("/P"), canceled), std::nullopt);
  EXPECT_EQ(files.listed(), (Names{"/P", "/P/a"}));
}

}  // namespace
}  // namespace glossmill
