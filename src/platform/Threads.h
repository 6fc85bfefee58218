#pragma once

#include <functional>

namespace glossmill {

/// The main thread and the background threads of long jobs.
class Threads {
 public:
  virtual ~Threads() = default;
  virtual bool isMainThread() const = 0;
  /// Starts a thread for one job; the host joins it before anything that the job uses goes away.
  virtual void performInBackground(std::function<void()> job) = 0;
  /// Runs `work` on the main thread and returns when it is done; on the main thread, at once. While the host shuts down
  /// `work` is dropped.
  virtual void performOnMainThreadAndWait(const std::function<void()>& work) = 0;
};

}  // namespace glossmill
