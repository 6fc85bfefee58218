#pragma once

#include <QSettings>

#include "platform/UserDefaults.h"

namespace glossmill {

/// The settings in the place where the desktop keeps those of the running application. A value that is there already is
/// not set again: writing the file waits for the disk.
class SettingsDefaults : public UserDefaults {
 public:
  std::optional<long> integerForKey(std::string_view key) override;
  void setInteger(std::string_view key, long value) override;
  std::optional<std::vector<std::string>> stringArrayForKey(std::string_view key) override;
  /// An empty list removes the key: the settings file has no form for it that reads back.
  void setStringArray(std::string_view key, const std::vector<std::string>& values) override;
  void synchronize() override { m_settings.sync(); }

 private:
  QSettings m_settings;
};

}  // namespace glossmill
