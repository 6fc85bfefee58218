#pragma once

#include <functional>

#include "platform/ApplicationServices.h"

namespace glossmill {

/// The running program without a window.
class HeadlessApplication : public Application {
 public:
  void terminate() override;

  bool isTerminated = false;
  std::function<void()> onTerminate;
};

}  // namespace glossmill
