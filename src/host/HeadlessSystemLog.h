#pragma once

#include <functional>
#include <mutex>

#include "platform/SystemLog.h"

namespace glossmill {

/// Passes the diagnostic lines, one at a time, to its owner.
class HeadlessSystemLog : public SystemLog {
 public:
  void write(const Message& message) override;

  /// Called on the thread that writes. Set it before the first line; without it lines are dropped.
  std::function<void(const Message&)> onLine;

 private:
  std::mutex m_mutex;
};

}  // namespace glossmill
