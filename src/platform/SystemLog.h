#pragma once

#include "text/Message.h"

namespace glossmill {

/// The log of the operating system, for diagnostic lines. Any thread.
class SystemLog {
 public:
  virtual ~SystemLog() = default;
  /// One message, without a final line feed; it may hold line feeds of its own.
  virtual void write(const Message& message) = 0;
};

}  // namespace glossmill
