#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/UserDefaults.h"

namespace glossmill {

/// Everything that outlives a run.
enum class SettingId { RecentProjects, StringFilter, CodeLengths, WindowLayout, XcodeProjects };

struct Setting {
  SettingId id;
  std::string_view key;  ///< under which it is stored, or below which when it is a group of values
  std::string_view meaning;
  long byDefault = 0;  ///< of a number; whatever is no number is empty by default
};

/// All of them, in the order of their ids.
std::span<const Setting> settings();
const Setting& setting(SettingId id);

// What is stored is on the disk afterwards. Main thread.

/// The default while nothing is stored.
long storedNumber(UserDefaults& defaults, SettingId id);
void storeNumber(UserDefaults& defaults, SettingId id, long value);
/// Empty while nothing is stored.
std::vector<std::string> storedTexts(UserDefaults& defaults, SettingId id);
void storeTexts(UserDefaults& defaults, SettingId id, const std::vector<std::string>& values);

}  // namespace glossmill
