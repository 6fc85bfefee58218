#include "model/Settings.h"

namespace glossmill {

namespace {

using enum SettingId;

constexpr Setting kSettings[] = {
    {RecentProjects, "RecentUrls", "paths of the projects that were opened last, the latest first"},
    {StringFilter, "StringFilterPopUp", "number of the string filter's item: 0 all strings, 1 those not complete", 0},
    // Spelled so in every stored setting (rule 58).
    {CodeLengths, "SelectLangaugeFilterButtonState",
     "languages that can be added: 0 those with two letters, 1 with three, 2 both", 0},
    {WindowLayout, "Layout", "where each window stood and how its parts were divided, by the names of the widgets"},
    {XcodeProjects, "XcodeRulesProjects",
     "paths of the projects that are read by xcode's rules, the latest chosen first"},
};

}  // namespace

std::span<const Setting> settings() {
  return kSettings;
}

const Setting& setting(SettingId id) {
  return kSettings[static_cast<std::size_t>(id)];
}

long storedNumber(UserDefaults& defaults, SettingId id) {
  return defaults.integerForKey(setting(id).key).value_or(setting(id).byDefault);
}

void storeNumber(UserDefaults& defaults, SettingId id, long value) {
  defaults.setInteger(setting(id).key, value);
  defaults.synchronize();
}

std::vector<std::string> storedTexts(UserDefaults& defaults, SettingId id) {
  return defaults.stringArrayForKey(setting(id).key).value_or(std::vector<std::string>());
}

void storeTexts(UserDefaults& defaults, SettingId id, const std::vector<std::string>& values) {
  defaults.setStringArray(setting(id).key, values);
  defaults.synchronize();
}

}  // namespace glossmill
