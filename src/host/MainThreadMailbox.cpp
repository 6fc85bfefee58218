#include "host/MainThreadMailbox.h"

#include <utility>

namespace glossmill {

void MainThreadMailbox::setWakeCallback(std::function<void()> wake) {
  {
    const std::lock_guard lock(m_mutex);
    m_wake = std::move(wake);
  }
  rearm();
}

bool MainThreadMailbox::performAndWait(const Work& work) {
  Item item{work};
  if (!post(item)) return false;
  if (!m_posterYield.until([&item] { return item.isFinished(); })) sleepUntilFinished(item);
  return item.state.load(std::memory_order_acquire) == State::Done;
}

bool MainThreadMailbox::post(Item& item) {
  std::function<void()> wake;
  {
    const std::lock_guard lock(m_mutex);
    if (m_closed) return false;
    m_queue.push_back(&item);
    m_queued.store(m_queue.size(), std::memory_order_release);
    if (std::exchange(m_armed, false)) wake = m_wake;
  }
  m_arrived.notify_one();
  if (wake) wake();
  return true;
}

void MainThreadMailbox::sleepUntilFinished(Item& item) {
  std::unique_lock lock(m_mutex);
  State expected = State::Waiting;
  if (!item.state.compare_exchange_strong(expected, State::Sleeping, std::memory_order_acq_rel)) return;
  m_finished.wait(lock, [&item] { return item.isFinished(); });
}

void MainThreadMailbox::drain(Duration maxTime) {
  const auto end = std::chrono::steady_clock::now() + maxTime;
  while (Item* item = takeNext()) {
    perform(*item);
    if (std::chrono::steady_clock::now() >= end) break;
    m_mainYield.until([this] { return waitingCount() != 0; });
  }
  rearm();
}

/// The poster waits also for work that throws.
void MainThreadMailbox::perform(Item& item) {
  try {
    item.work();
  } catch (...) {
    finish(item, State::Done);
    throw;
  }
  finish(item, State::Done);
}

MainThreadMailbox::Item* MainThreadMailbox::takeNext() {
  if (waitingCount() == 0) return nullptr;
  const std::lock_guard lock(m_mutex);
  if (m_queue.empty()) return nullptr;
  Item* item = m_queue.front();
  m_queue.pop_front();
  m_queued.store(m_queue.size(), std::memory_order_release);
  return item;
}

/// Only a poster that has gone to sleep has to be woken; one that still yields may be gone right after the exchange.
void MainThreadMailbox::finish(Item& item, State state) {
  if (item.state.exchange(state, std::memory_order_acq_rel) != State::Sleeping) return;
  { const std::lock_guard lock(m_mutex); }
  m_finished.notify_all();
}

void MainThreadMailbox::waitAndDrain(Duration timeout) {
  {
    std::unique_lock lock(m_mutex);
    m_arrived.wait_for(lock, timeout, [this] { return m_nudged || !m_queue.empty(); });
    m_nudged = false;
  }
  drain();
}

void MainThreadMailbox::rearm() {
  std::function<void()> wake;
  {
    const std::lock_guard lock(m_mutex);
    m_armed = m_queue.empty();
    if (!m_armed) wake = m_wake;
  }
  if (wake) wake();
}

void MainThreadMailbox::nudge() {
  {
    const std::lock_guard lock(m_mutex);
    m_nudged = true;
  }
  m_arrived.notify_one();
}

void MainThreadMailbox::close() {
  std::deque<Item*> dropped;
  {
    const std::lock_guard lock(m_mutex);
    m_closed = true;
    dropped.swap(m_queue);
    m_queued.store(0, std::memory_order_release);
  }
  for (Item* item : dropped) finish(*item, State::Dropped);
}

}  // namespace glossmill
