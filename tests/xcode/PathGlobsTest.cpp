#include <gtest/gtest.h>

#include "xcode/PathGlobs.h"

namespace glossmill {
namespace {

bool takes(const std::string& pattern, std::string_view path) {
  return PathGlobs({pattern}).take(path);
}

TEST(PathGlobs, AStarStaysInItsPart) {
  EXPECT_TRUE(takes("Boats/*.m", "Boats/Hull.m"));
  EXPECT_FALSE(takes("Boats/*.m", "Boats/Parts/Hull.m"));
  EXPECT_FALSE(takes("*.m", "Boats/Hull.m"));
  EXPECT_TRUE(takes("H?ll.m", "Hull.m"));
}

TEST(PathGlobs, TwoStarsStandForAnyNumberOfParts) {
  for (const char* path : {"Pods", "a/Pods", "a/b/Pods/c.m"}) EXPECT_TRUE(takes("**/Pods", path)) << path;
  EXPECT_TRUE(takes("a/**/c", "a/c"));
  EXPECT_TRUE(takes("**/b/**/d", "a/b/c/b/d"));
  EXPECT_FALSE(takes("a/**/c", "b/c"));
}

TEST(PathGlobs, ADirectoryTakesAllThatIsInside) {
  EXPECT_TRUE(takes("Vendor", "Vendor/a/b.m"));
  EXPECT_TRUE(takes("./Vendor/", "Vendor/b.m"));
  EXPECT_FALSE(takes("Vendor", "Vendors/b.m"));
}

TEST(PathGlobs, ManyStarsDoNoHarm) {
  std::string pattern;
  for (int i = 0; i < 200; ++i) pattern += "*a";
  EXPECT_FALSE(takes(pattern, std::string(400, 'a') + "b"));
}

TEST(PathGlobs, NoPatternTakesNothing) {
  EXPECT_FALSE(PathGlobs().take("a"));
  EXPECT_FALSE(PathGlobs({"", "/"}).take("a"));
}

}  // namespace
}  // namespace glossmill
