#pragma once

#include <atomic>

namespace glossmill {

/// Set on the main thread, polled by a background job; a late look only delays the stop.
class CancelFlag {
 public:
  void set(bool canceled) { m_canceled.store(canceled, std::memory_order_relaxed); }
  bool isSet() const { return m_canceled.load(std::memory_order_relaxed); }

 private:
  std::atomic<bool> m_canceled = false;
};

}  // namespace glossmill
