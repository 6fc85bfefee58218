#pragma once

#include "platform/SystemLog.h"

namespace glossmill {

/// Diagnostic lines on the standard error stream, each with the program's name before it.
class StderrSystemLog : public SystemLog {
 public:
  void write(std::string_view message) override;
};

}  // namespace glossmill
