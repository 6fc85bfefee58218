#pragma once

#include <functional>
#include <mutex>

#include "platform/SystemLog.h"

namespace glossmill {

/// Passes the diagnostic lines, one at a time, to its owner.
class HeadlessSystemLog : public SystemLog {
 public:
  void write(std::string_view message) override;

  /// Called on the thread that writes. Set it before the first line; without it lines are dropped.
  std::function<void(std::string_view)> onLine;

 private:
  std::mutex m_mutex;
};

}  // namespace glossmill
