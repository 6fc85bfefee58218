#pragma once

#include <atomic>
#include <functional>
#include <list>
#include <mutex>
#include <thread>

#include "host/MainThreadMailbox.h"
#include "platform/Threads.h"

namespace glossmill {

/// One std::thread per background job, and a mailbox to the thread that made this object: the main thread, which lends
/// its role to jobs while it waits for them. What a job throws, such as that there is no memory left, is thrown again
/// on the main thread, where it drains the mailbox; a thread that cannot be started is a std::system_error at once.
class HostThreads : public Threads {
 public:
  HostThreads() = default;
  ~HostThreads() override { joinAll(); }
  HostThreads(const HostThreads&) = delete;
  HostThreads& operator=(const HostThreads&) = delete;

  bool isMainThread() const override { return m_mailbox.isMainThread(); }
  void performInBackground(std::function<void()> job) override;
  void performOnMainThreadAndWait(const std::function<void()>& work) override;

  /// The main loop of a host without a window: until no job is left, their work for the main thread is done here or,
  /// with the role borrowed, by themselves; then they are joined. `tick` is called about every 50 ms meanwhile. Not
  /// from within such work, which is a std::logic_error where the role is borrowed.
  void runUntilIdle(const std::function<void()>& tick = {});
  /// Shuts down: work for the main thread is dropped from now on, jobs are not started any more, running ones are
  /// waited for. Cancel them before.
  void joinAll();

  /// Jobs that have been started and not yet ended. Any thread.
  int jobsRunning() const { return m_running.load(std::memory_order_acquire); }
  /// For an event loop that drains the mailbox itself.
  MainThreadMailbox& mailbox() { return m_mailbox; }

 private:
  struct Job {
    std::thread thread;
    std::atomic<bool> ended{false};
  };

  void run(const std::function<void()>& work, Job& job);
  void joinEnded();

  MainThreadMailbox m_mailbox;
  std::atomic<int> m_running{0};
  std::mutex m_mutex;
  std::list<Job> m_jobs;
  bool m_closed = false;
};

}  // namespace glossmill
