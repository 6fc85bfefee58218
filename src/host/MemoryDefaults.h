#pragma once

#include <map>

#include "platform/UserDefaults.h"

namespace glossmill {

/// Settings that are forgotten at the end of the run.
class MemoryDefaults : public UserDefaults {
 public:
  std::optional<long> integerForKey(std::string_view key) override;
  void setInteger(std::string_view key, long value) override;
  std::optional<std::vector<std::string>> stringArrayForKey(std::string_view key) override;
  void setStringArray(std::string_view key, const std::vector<std::string>& values) override;
  void synchronize() override { ++m_synchronizeCount; }

  /// How often the settings were to be written to disk.
  int synchronizeCount() const { return m_synchronizeCount; }

 private:
  std::map<std::string, long, std::less<>> m_integers;
  std::map<std::string, std::vector<std::string>, std::less<>> m_arrays;
  int m_synchronizeCount = 0;
};

}  // namespace glossmill
