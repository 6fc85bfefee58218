#include "host/MainThreadMailbox.h"

#include <stdexcept>
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
  if (borrowRole()) {
    performBorrowed(work);
    return true;
  }
  Item item{work};
  if (!post(item)) return false;
  if (!m_posterYield.until([&item] { return item.isFinished(); })) sleepUntilFinished(item);
  return item.state.load(std::memory_order_acquire) == State::Done;
}

/// Not in front of work that waits, and not when the main thread wants to go on.
bool MainThreadMailbox::borrowRole() {
  const std::lock_guard lock(m_mutex);
  if (!m_parked || isLent() || ownerIsCalled() || m_closed) return false;
  m_holder.store(std::this_thread::get_id(), std::memory_order_relaxed);
  return true;
}

void MainThreadMailbox::performBorrowed(const Work& work) {
  std::exception_ptr problem;
  try {
    work();
  } catch (...) {
    problem = std::current_exception();
  }
  giveRoleBack(std::move(problem));
}

void MainThreadMailbox::giveRoleBack(std::exception_ptr problem) {
  bool isCalled = false;
  {
    const std::lock_guard lock(m_mutex);
    m_problem = std::move(problem);
    m_holder.store(m_owner, std::memory_order_relaxed);
    isCalled = ownerIsCalled();
  }
  if (isCalled) m_arrived.notify_one();
}

void MainThreadMailbox::requireOwner() const {
  if (std::this_thread::get_id() != m_owner) throw std::logic_error("only the main thread itself runs its loop");
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
  requireOwner();
  const Clock::time_point end = Clock::now() + maxTime;
  while (Item* item = takeNext()) {
    perform(*item);
    if (Clock::now() >= end) break;
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

void MainThreadMailbox::parkUntil(Clock::time_point time) {
  requireOwner();
  std::exception_ptr problem;
  {
    std::unique_lock lock(m_mutex);
    m_parked = !m_wake;
    m_arrived.wait_until(lock, time, [this] { return ownerIsCalled() && !isLent(); });
    m_recalled = true;
    m_arrived.wait(lock, [this] { return !isLent(); });
    m_parked = m_recalled = m_nudged = false;
    problem = std::exchange(m_problem, nullptr);
  }
  if (problem) std::rethrow_exception(problem);
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
