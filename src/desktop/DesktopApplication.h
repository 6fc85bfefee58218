#pragma once

#include <functional>

#include "platform/ApplicationServices.h"

namespace glossmill {

/// The running program: ending it ends the event loop, without closing windows one by one.
class DesktopApplication : public Application {
 public:
  void terminate() override;
  /// Ends the process where it stands.
  void exitAtOnce(int code);

  /// In the place of ending the event loop, and the process.
  std::function<void()> onTerminate;
  std::function<void(int code)> onExitAtOnce;
  bool isTerminated() const { return m_isTerminated; }

 private:
  bool m_isTerminated = false;
};

}  // namespace glossmill
