#include "app/RememberedRules.h"

#include <algorithm>
#include <string>
#include <vector>

#include "model/Settings.h"

namespace glossmill {

namespace {

constexpr std::size_t kMostRemembered = 100;

}  // namespace

RuleSet rememberedRules(UserDefaults& defaults, const FileUrl& directory) {
  const std::vector<std::string> paths = storedTexts(defaults, SettingId::XcodeProjects);
  const bool isKnown = std::find(paths.begin(), paths.end(), directory.path()) != paths.end();
  return isKnown ? RuleSet::Xcode : RuleSet::Classic;
}

/// Only the other choice is worth a place.
void rememberRules(UserDefaults& defaults, const FileUrl& directory, RuleSet rules) {
  std::vector<std::string> paths = storedTexts(defaults, SettingId::XcodeProjects);
  std::erase(paths, directory.path());
  if (rules == RuleSet::Xcode) paths.insert(paths.begin(), directory.path());
  if (paths.size() > kMostRemembered) paths.resize(kMostRemembered);
  storeTexts(defaults, SettingId::XcodeProjects, paths);
}

}  // namespace glossmill
