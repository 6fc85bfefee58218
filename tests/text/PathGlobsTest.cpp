#include <gtest/gtest.h>

#include "text/PathGlobs.h"

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

TEST(Wildcards, StandForOtherCharactersOfTheWholeText) {
  EXPECT_TRUE(fitsWildcards("legal.*", "legal.a/b"));
  EXPECT_TRUE(fitsWildcards("*", ""));
  EXPECT_TRUE(fitsWildcards("", ""));
  EXPECT_TRUE(fitsWildcards("?ffnen", "\u00D6ffnen"));
  EXPECT_TRUE(fitsWildcards("a*b*c", "aXbYbZc"));
  EXPECT_FALSE(fitsWildcards("legal", "legal.a"));
  EXPECT_FALSE(fitsWildcards("??ffnen", "\u00D6ffnen"));
  EXPECT_FALSE(fitsWildcards("a*b", "aXc"));
  EXPECT_FALSE(fitsWildcards("", "a"));
}

}  // namespace
}  // namespace glossmill
