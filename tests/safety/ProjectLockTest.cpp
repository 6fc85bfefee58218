#include <gtest/gtest.h>

#include "safety/ProjectLock.h"
#include "support/InMemorySaveDisk.h"

namespace glossmill {
namespace {

const FileUrl kLockedProject("/x/App");

class ProjectLockTest : public testing::Test {
 protected:
  ProjectLockTest() { files.addDirectory("/x/App"); }
  static bool never() { return false; }

  InMemoryFiles files;
  InMemorySaveDisk disk{files};
};

TEST_F(ProjectLockTest, TheSecondHearsWhoHoldsIt) {
  ProjectLock first(files, disk, kLockedProject);
  ASSERT_FALSE(first.acquire(never).value());
  ProjectLock second(files, disk, kLockedProject);
  const auto held = second.acquire(never);
  ASSERT_TRUE(held && held.value());
  EXPECT_EQ(held.value()->by, 7);
  EXPECT_FALSE(second.isHeld());
}

TEST_F(ProjectLockTest, ItIsTriedAgainAsLongAsSomebodyWantsToWait) {
  auto first = std::make_unique<ProjectLock>(files, disk, kLockedProject);
  ASSERT_FALSE(first->acquire(never).value());
  ProjectLock second(files, disk, kLockedProject);
  int tries = 0;
  const auto held = second.acquire([&] {
    if (++tries == 3) first.reset();
    return true;
  });
  ASSERT_TRUE(held);
  EXPECT_FALSE(held.value());
  EXPECT_EQ(tries, 3);
}

TEST_F(ProjectLockTest, ItEndsWithItsObject) {
  { ASSERT_FALSE(ProjectLock(files, disk, kLockedProject).acquire(never).value()); }
  EXPECT_FALSE(disk.holdsLock());
  EXPECT_FALSE(ProjectLock(files, disk, kLockedProject).acquire(never).value());
}

TEST_F(ProjectLockTest, WithoutAStateDirectoryItHoldsAndNobodyKnowsByWhom) {
  disk.setStateDirectory(std::nullopt);
  ProjectLock first(files, disk, kLockedProject);
  ASSERT_FALSE(first.acquire(never).value());
  ProjectLock second(files, disk, kLockedProject);
  EXPECT_EQ(second.acquire(never).value()->by, std::nullopt);
}

}  // namespace
}  // namespace glossmill
