#include <gtest/gtest.h>
#include <sys/stat.h>

#include <optional>
#include <string>

#include "host/PosixFiles.h"
#include "scan/PackageSearch.h"
#include "scan/ParseFileList.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryDirectory.h"

namespace glossmill {
namespace {

/// A directory on the real disk that may be listed, but in which nothing may be reached.
class UnsearchableDirectory : public testing::Test, private ScanListener {
 protected:
  UnsearchableDirectory() {
    for (const char* file :
         {"closed/A.xcodeproj/project.pbxproj", "closed/Boat.m", "closed/de.lproj/Localizable.strings",
          "open/B.xcodeproj/project.pbxproj", "open/Sail.m", "open/fr.lproj/Localizable.strings"}) {
      directory.makeFile(file, "Boat.m Sail.m");
    }
    directory.makeLink("closed/fr.lproj", "../open/fr.lproj");
    chmod(directory.path("closed").c_str(), 0644);
  }
  ~UnsearchableDirectory() override { chmod(directory.path("closed").c_str(), 0755); }

  void scan() {
    const OrdinaryUser ordinary;
    parseFileList(directory.url(), {files, isoTable, canceled, *this, options}, memory, result);
  }

  const TemporaryDirectory directory;
  PosixFiles files;
  IsoTable isoTable;
  CancelFlag canceled;
  ProjectOptions options;
  ScanMemory memory;
  ScanResult result;
  std::size_t unread = 0;

 private:
  void happened(const ScanEvent& event) override { unread += std::holds_alternative<SourceUnread>(event) ? 1 : 0; }
};

TEST_F(UnsearchableDirectory, HoldsNoPackage) {
  scan();
  EXPECT_EQ(memory.projectPackage, directory.url("open/B.xcodeproj"));
}

TEST_F(UnsearchableDirectory, HoldsNoSourceAndNoLanguage) {
  scan();
  EXPECT_EQ(result.fileList, std::vector<FileUrl>{directory.url("open/Sail.m")});
  ASSERT_EQ(result.languagesList->size(), 1U);
  EXPECT_EQ(result.languagesList->front()->localizedStringUrl(), directory.url("open/fr.lproj/Localizable.strings"));
  EXPECT_EQ(unread, 0U);
}

}  // namespace
}  // namespace glossmill
