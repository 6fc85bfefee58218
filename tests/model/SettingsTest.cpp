#include <gtest/gtest.h>

#include <set>

#include "host/MemoryDefaults.h"
#include "model/Settings.h"

namespace glossmill {
namespace {

using Texts = std::vector<std::string>;

TEST(Settings, AreFoundByTheirId) {
  for (const Setting& each : settings()) EXPECT_EQ(&setting(each.id), &each) << each.key;
  EXPECT_EQ(settings().size(), static_cast<std::size_t>(SettingId::XcodeProjects) + 1);
}

TEST(Settings, HaveAKeyOfTheirOwnAndAMeaning) {
  std::set<std::string_view> keys;
  for (const Setting& each : settings()) {
    EXPECT_TRUE(keys.insert(each.key).second) << each.key;
    EXPECT_FALSE(each.meaning.empty()) << each.key;
  }
}

TEST(Settings, KeepTheKeysOfWhatIsStoredAlready) {
  EXPECT_EQ(setting(SettingId::RecentProjects).key, "RecentUrls");
  EXPECT_EQ(setting(SettingId::StringFilter).key, "StringFilterPopUp");
  EXPECT_EQ(setting(SettingId::CodeLengths).key, "SelectLangaugeFilterButtonState");
  EXPECT_EQ(setting(SettingId::WindowLayout).key, "Layout");
  EXPECT_EQ(setting(SettingId::XcodeProjects).key, "XcodeRulesProjects");
}

TEST(Settings, HaveTheirDefaultWhileNothingIsStored) {
  MemoryDefaults defaults;
  for (const Setting& each : settings()) {
    EXPECT_EQ(storedNumber(defaults, each.id), each.byDefault) << each.key;
    EXPECT_EQ(storedTexts(defaults, each.id), Texts()) << each.key;
  }
}

TEST(Settings, AreWrittenAtOnce) {
  MemoryDefaults defaults;
  storeNumber(defaults, SettingId::CodeLengths, 2);
  EXPECT_EQ(defaults.synchronizeCount(), 1);
  storeTexts(defaults, SettingId::RecentProjects, {"/a", "/b"});
  EXPECT_EQ(defaults.synchronizeCount(), 2);
  EXPECT_EQ(storedNumber(defaults, SettingId::CodeLengths), 2);
  EXPECT_EQ(storedTexts(defaults, SettingId::RecentProjects), Texts({"/a", "/b"}));
  EXPECT_EQ(defaults.integerForKey("SelectLangaugeFilterButtonState"), 2);
}

}  // namespace
}  // namespace glossmill
