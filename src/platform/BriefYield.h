#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>

namespace glossmill {

/// Yields the processor for a moment before its owner goes to sleep, because waking a sleeping thread costs far more
/// than a short hop takes. On a busy machine a yield is what costs: after a long one yielding pauses for a while. One
/// alone says little, since the thread that is waited for may have had the same processor; the pause grows when more
/// follow soon. Any number of threads.
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
      if (after - before > kLongYield) pause(after);
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
  static constexpr Clock::duration kFirstPause = std::chrono::milliseconds(1);
  static constexpr Clock::duration kLongestPause = std::chrono::milliseconds(16);
  static constexpr Clock::duration kSoon = std::chrono::milliseconds(20);

  void pause(Clock::time_point now) {
    const Clock::rep time = now.time_since_epoch().count();
    const bool again = time - m_pausedUntil.load(std::memory_order_relaxed) < kSoon.count();
    const Clock::rep longer = std::min(2 * m_pause.load(std::memory_order_relaxed), kLongestPause.count());
    const Clock::rep pause = again ? longer : kFirstPause.count();
    m_pause.store(pause, std::memory_order_relaxed);
    m_pausedUntil.store(time + pause, std::memory_order_relaxed);
  }

  std::atomic<Clock::rep> m_pausedUntil{0};
  std::atomic<Clock::rep> m_pause{kFirstPause.count()};
};

}  // namespace glossmill
