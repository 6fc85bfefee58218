#include <gtest/gtest.h>

#include "safety/OpenWindows.h"
#include "safety/ProjectState.h"
#include "support/InMemorySaveDisk.h"

namespace glossmill {
namespace {

using Processes = std::vector<std::int64_t>;

class OpenWindowsTest : public testing::Test {
 protected:
  OpenWindowsTest() { files.addDirectory("/x/App"); }

  InMemoryFiles files;
  InMemorySaveDisk disk{files};
  const FileUrl project{"/x/App"};
};

TEST_F(OpenWindowsTest, EachHearsOfTheOthersAndNotOfItself) {
  OpenWindows first(files, disk, project);
  first.enter();
  EXPECT_EQ(first.others(), Processes{});
  OpenWindows second(files, disk, project);
  EXPECT_EQ(second.others(), Processes{7});
  second.enter();
  EXPECT_EQ(second.others(), Processes{7});
  EXPECT_EQ(first.others(), Processes{7});
  second.leave();
  EXPECT_EQ(first.others(), Processes{});
}

TEST_F(OpenWindowsTest, WhatAnEndedProcessLeftIsRemoved) {
  const FileUrl left = stateDirectoryOf(disk, project).value().appending("windows").appending("99-0");
  ASSERT_TRUE(disk.createPrivateDirectory(left));
  EXPECT_EQ(OpenWindows(files, disk, project).others(), Processes{});
  EXPECT_FALSE(files.exists(left.path()));
}

TEST_F(OpenWindowsTest, WithoutAStateDirectoryNobodyHearsOfAnything) {
  disk.setStateDirectory(std::nullopt);
  OpenWindows first(files, disk, project);
  first.enter();
  EXPECT_EQ(OpenWindows(files, disk, project).others(), Processes{});
}

}  // namespace
}  // namespace glossmill
