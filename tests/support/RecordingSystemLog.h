#pragma once

#include <mutex>
#include <string>
#include <vector>

#include "platform/SystemLog.h"

namespace glossmill {

/// Keeps the diagnostic lines in the order in which they were written.
class RecordingSystemLog : public SystemLog {
 public:
  void write(const Message& message) override {
    const std::lock_guard lock(m_mutex);
    m_lines.push_back(message.text());
  }

  std::vector<std::string> lines() {
    const std::lock_guard lock(m_mutex);
    return m_lines;
  }

 private:
  std::mutex m_mutex;
  std::vector<std::string> m_lines;
};

}  // namespace glossmill
