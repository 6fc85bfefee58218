#include <gtest/gtest.h>

#include "host/MemoryDefaults.h"

namespace glossmill {
namespace {

using Texts = std::vector<std::string>;

TEST(MemoryDefaults, HoldNothingAtFirst) {
  MemoryDefaults defaults;
  EXPECT_FALSE(defaults.integerForKey("StringFilterPopUp").has_value());
  EXPECT_FALSE(defaults.stringArrayForKey("RecentUrls").has_value());
}

TEST(MemoryDefaults, KeepTheLatestValueOfEachKey) {
  MemoryDefaults defaults;
  defaults.setInteger("a", 1);
  defaults.setInteger("a", -2);
  defaults.setInteger("b", 3);
  EXPECT_EQ(defaults.integerForKey("a"), -2);
  EXPECT_EQ(defaults.integerForKey("b"), 3);
  defaults.setStringArray("urls", {"/one", "/two"});
  defaults.setStringArray("urls", {"/three"});
  EXPECT_EQ(defaults.stringArrayForKey("urls"), Texts{"/three"});
}

TEST(MemoryDefaults, TellAnEmptyListFromNone) {
  MemoryDefaults defaults;
  defaults.setStringArray("urls", {});
  EXPECT_EQ(defaults.stringArrayForKey("urls"), Texts{});
}

TEST(MemoryDefaults, CountHowOftenTheyWereToBeWritten) {
  MemoryDefaults defaults;
  EXPECT_EQ(defaults.synchronizeCount(), 0);
  defaults.synchronize();
  defaults.synchronize();
  EXPECT_EQ(defaults.synchronizeCount(), 2);
}

}  // namespace
}  // namespace glossmill
