#include <gtest/gtest.h>

#include "project/DevelopmentRegion.h"

namespace glossmill {
namespace {

TEST(DevelopmentRegion, IsWhatTheProjectFileSays) {
  EXPECT_EQ(developmentRegionOf("compatibilityVersion = 1;\n\t\tdevelopmentRegion = en;\n"), "en");
  EXPECT_EQ(developmentRegionOf("developmentRegion=\"zh-Hans\";"), "zh-Hans");
  EXPECT_EQ(developmentRegionOf("developmentRegion = English ; developmentRegion = de;"), "English");
}

TEST(DevelopmentRegion, IsNothingWhereTheFileSaysNothing) {
  EXPECT_EQ(developmentRegionOf(""), "");
  EXPECT_EQ(developmentRegionOf("developmentRegion"), "");
  EXPECT_EQ(developmentRegionOf("/* developmentRegion */ knownRegions = (en);"), "");
  EXPECT_EQ(developmentRegionOf("developmentRegion = "), "");
}

}  // namespace
}  // namespace glossmill
