#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// The settings that outlive a run. Main thread.
class UserDefaults {
 public:
  virtual ~UserDefaults() = default;
  /// Nothing when absent.
  virtual std::optional<long> integerForKey(std::string_view key) = 0;
  virtual void setInteger(std::string_view key, long value) = 0;
  /// Nothing when absent; an empty list that was stored may also come back as nothing.
  virtual std::optional<std::vector<std::string>> stringArrayForKey(std::string_view key) = 0;
  virtual void setStringArray(std::string_view key, const std::vector<std::string>& values) = 0;
  /// Writes what was set to disk at once.
  virtual void synchronize() = 0;
};

}  // namespace glossmill
