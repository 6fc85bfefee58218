#include <gtest/gtest.h>

#include "app/RememberedRules.h"
#include "host/MemoryDefaults.h"
#include "model/Settings.h"

namespace glossmill {
namespace {

TEST(RememberedRules, AreTheClassicOnesUntilOthersAreChosen) {
  MemoryDefaults defaults;
  EXPECT_EQ(rememberedRules(defaults, FileUrl("/p")), RuleSet::Classic);
  rememberRules(defaults, FileUrl("/p"), RuleSet::Xcode);
  EXPECT_EQ(rememberedRules(defaults, FileUrl("/p")), RuleSet::Xcode);
  EXPECT_EQ(rememberedRules(defaults, FileUrl("/p/q")), RuleSet::Classic);
  rememberRules(defaults, FileUrl("/p"), RuleSet::Classic);
  EXPECT_EQ(rememberedRules(defaults, FileUrl("/p")), RuleSet::Classic);
}

TEST(RememberedRules, ForgetTheChoiceOfLongAgo) {
  MemoryDefaults defaults;
  for (int number = 0; number < 101; ++number) {
    rememberRules(defaults, FileUrl("/p" + std::to_string(number)), RuleSet::Xcode);
  }
  EXPECT_EQ(storedTexts(defaults, SettingId::XcodeProjects).size(), 100U);
  EXPECT_EQ(rememberedRules(defaults, FileUrl("/p0")), RuleSet::Classic);
  EXPECT_EQ(rememberedRules(defaults, FileUrl("/p1")), RuleSet::Xcode);
  EXPECT_EQ(rememberedRules(defaults, FileUrl("/p100")), RuleSet::Xcode);
}

TEST(RememberedRules, TakeOnePlaceHoweverOftenTheyAreChosen) {
  MemoryDefaults defaults;
  for (const char* path : {"/a", "/b", "/a"}) rememberRules(defaults, FileUrl(path), RuleSet::Xcode);
  EXPECT_EQ(storedTexts(defaults, SettingId::XcodeProjects), (std::vector<std::string>{"/a", "/b"}));
}

}  // namespace
}  // namespace glossmill
