#pragma once

#include <string_view>

#include "platform/NewsBoard.h"
#include "text/Message.h"

namespace glossmill {

/// What the project asks of the application around it (the application delegate).
class ApplicationServices {
 public:
  virtual ~ApplicationServices() = default;
  /// One message for the log window. Any thread; returns when the line is in the log.
  virtual void logText(const Message& message) = 0;
  virtual void clearLog() = 0;
  /// Puts a project directory's path at the top of the recent projects.
  virtual void saveRecent(std::string_view path) = 0;
  /// The quiet bar of the project window.
  virtual NewsBoard& news() = 0;
};

/// The running program.
class Application {
 public:
  virtual ~Application() = default;
  virtual void terminate() = 0;
};

}  // namespace glossmill
