#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

#include "platform/BriefYield.h"

namespace glossmill {

/// Carries work from other threads to the main thread, where it is done in the order of posting while each poster
/// waits. It outlives the threads that use it.
///
/// Being the main thread is a role. It belongs to the thread that made this object; while that one is parked and has
/// nothing to do, a poster borrows the role, does its work itself and gives the role back, which spares waking a thread
/// for every hop. The role changes hands under the mutex, so whoever holds it sees what its holders did before.
class MainThreadMailbox {
 public:
  using Work = std::function<void()>;
  using Clock = std::chrono::steady_clock;
  using Duration = Clock::duration;

  MainThreadMailbox() : m_owner(std::this_thread::get_id()), m_holder(m_owner) {}
  MainThreadMailbox(const MainThreadMailbox&) = delete;
  MainThreadMailbox& operator=(const MainThreadMailbox&) = delete;

  /// The longest that a turn of a foreign event loop should spend here.
  static constexpr std::chrono::milliseconds kTurn{8};

  /// For a foreign event loop, which is to call drain() soon after `wake`. It is called on the poster's thread when the
  /// first work arrives, then not before the queue was drained, and once more by a drain that had to leave work behind.
  /// Set it on the main thread; it is called at once when work waits already. From then on the role is not lent.
  void setWakeCallback(std::function<void()> wake);

  /// Any thread but the main one. Returns when `work` is done, or false without having done it once the mailbox is
  /// closed.
  bool performAndWait(const Work& work);

  /// Whether the calling thread holds the role of the main thread now.
  bool isMainThread() const { return m_holder.load(std::memory_order_relaxed) == std::this_thread::get_id(); }

  // The main thread's side. Work may call all of it again where it is done by the main thread itself; a thread that
  // only borrowed the role must not run a loop with it, which is a std::logic_error.

  /// Does what waits, and what comes while it does, for about `maxTime` at most; one work is never cut short. What work
  /// throws goes through, and the rest waits for the next call.
  void drain(Duration maxTime = kTurn);
  /// Sleeps until there is work, a nudge(), or that time has come, and lends the role meanwhile; getting it back takes
  /// one hop at most. What a borrower's work threw is thrown here.
  void parkUntil(Clock::time_point time);
  /// Lets the next work call `wake` again, or calls it now if work waits. To be called by work that is going to run a
  /// nested event loop.
  void rearm();

  /// Work that has been posted and not yet begun. Any thread.
  std::size_t waitingCount() const { return m_queued.load(std::memory_order_acquire); }
  /// Any thread: ends the sleep of parkUntil(), or the next one.
  void nudge();
  /// Refuses new work and releases who waits; their work is dropped, but what is being done is finished. For good.
  void close();

 private:
  enum class State { Waiting, Sleeping, Done, Dropped };

  /// One hop; it lives on the poster's stack and is gone as soon as its state says that it is finished.
  struct Item {
    const Work& work;
    std::atomic<State> state{State::Waiting};

    bool isFinished() const { return state.load(std::memory_order_acquire) >= State::Done; }
  };

  bool borrowRole();
  void performBorrowed(const Work& work);
  void giveRoleBack(std::exception_ptr problem);
  void requireOwner() const;
  bool isLent() const { return m_holder.load(std::memory_order_relaxed) != m_owner; }
  bool ownerIsCalled() const { return m_recalled || m_nudged || m_problem || !m_queue.empty(); }

  bool post(Item& item);
  void sleepUntilFinished(Item& item);
  Item* takeNext();
  void perform(Item& item);
  void finish(Item& item, State state);

  const std::thread::id m_owner;
  std::atomic<std::thread::id> m_holder;  ///< written under the mutex; every thread may ask whether it is the one

  std::mutex m_mutex;
  std::condition_variable m_arrived;   ///< the main thread sleeps on this, also until the role is back
  std::condition_variable m_finished;  ///< the posters sleep on this
  std::deque<Item*> m_queue;
  std::atomic<std::size_t> m_queued{0};  ///< size of m_queue, for a look without the lock
  std::function<void()> m_wake;
  bool m_armed = true;
  bool m_parked = false;         ///< the role may be borrowed
  bool m_recalled = false;       ///< the main thread waits for the role
  std::exception_ptr m_problem;  ///< what a borrower's work threw
  bool m_nudged = false;
  bool m_closed = false;
  BriefYield m_mainYield;
  BriefYield m_posterYield;
};

}  // namespace glossmill
