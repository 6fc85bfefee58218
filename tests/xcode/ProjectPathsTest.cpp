#include <gtest/gtest.h>

#include "xcode/ProjectPaths.h"

namespace glossmill {
namespace {

TEST(ProjectPaths, AddUp) {
  EXPECT_EQ(joinedPath("", ""), "");
  EXPECT_EQ(joinedPath("", "a"), "a");
  EXPECT_EQ(joinedPath("a", ""), "a");
  EXPECT_EQ(joinedPath("a", "b/c"), "a/b/c");
  EXPECT_EQ(joinedPath("a", "/b"), "/b");
  EXPECT_EQ(joinedPath("/", "a"), "/a");
}

TEST(ProjectPaths, AreNormalised) {
  EXPECT_EQ(joinedPath("", "./a/./b//c/"), "a/b/c");
  EXPECT_EQ(joinedPath("a/b", "../c"), "a/c");
  EXPECT_EQ(joinedPath("a", "../../c"), "../c");
  EXPECT_EQ(joinedPath("a", ".."), "");
  EXPECT_EQ(joinedPath("..", ".."), "../..");
  EXPECT_EQ(joinedPath("../a", "../.."), "../..");
  EXPECT_EQ(joinedPath("/a", ".."), "/");
  EXPECT_EQ(joinedPath("/a", "../../b"), "/b");
  EXPECT_EQ(joinedPath("a..", "..b/..."), "a../..b/...");
}

TEST(ProjectPaths, EndAtWhatADiskTakes) {
  EXPECT_EQ(joinedPath("", std::string(1023, 'a')), std::string(1023, 'a'));
  EXPECT_EQ(joinedPath("", std::string(1024, 'a')), std::nullopt);
  EXPECT_EQ(joinedPath(std::string(600, 'a'), std::string(600, 'b')), std::nullopt);
}

}  // namespace
}  // namespace glossmill
