#pragma once

#include "platform/SystemLog.h"

namespace glossmill {

/// Diagnostic lines on the standard error stream, each with the program's name before it.
class StderrSystemLog : public SystemLog {
 public:
  void write(const Message& message) override;
};

}  // namespace glossmill
