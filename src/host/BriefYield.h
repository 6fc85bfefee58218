#pragma once

#include <atomic>
#include <chrono>
#include <thread>

namespace glossmill {

/// Yields the processor for a moment before its owner goes to sleep, because waking a sleeping thread costs far more
/// than a short hop takes. On a busy machine a yield is what costs: after a long one yielding pauses for a while. Any
/// number of threads.
class BriefYield {
 public:
  /// Yields until `ready` says true or it is time to sleep; gives the last answer of `ready`.
  template <typename Ready>
  bool until(const Ready& ready) {
    if (ready()) return true;
    const Clock::time_point start = Clock::now();
    if (start.time_since_epoch().count() < m_pausedUntil.load(std::memory_order_relaxed)) return false;
    for (Clock::time_point before = start; before - start < kPatience;) {
      std::this_thread::yield();
      const Clock::time_point after = Clock::now();
      if (after - before > kLongYield) pauseUntil(after + kPause);
      if (ready()) return true;
      if (after - before > kLongYield) return false;
      before = after;
    }
    return false;
  }

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::microseconds kPatience{50};
  static constexpr std::chrono::microseconds kLongYield{100};
  static constexpr std::chrono::milliseconds kPause{10};

  void pauseUntil(Clock::time_point end) {
    m_pausedUntil.store(end.time_since_epoch().count(), std::memory_order_relaxed);
  }

  std::atomic<Clock::rep> m_pausedUntil{0};
};

}  // namespace glossmill
