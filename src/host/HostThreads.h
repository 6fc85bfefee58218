#pragma once

#include <atomic>
#include <functional>
#include <list>
#include <mutex>
#include <thread>

#include "host/MainThreadMailbox.h"
#include "platform/Threads.h"

namespace glossmill {

/// One std::thread per background job, and a mailbox to the thread that made this object: the main thread. What a job
/// throws, such as that there is no memory left, is thrown again on the main thread, where it drains the mailbox; a
/// thread that cannot be started is a std::system_error at once.
class HostThreads : public Threads {
 public:
  HostThreads() : m_mainThread(std::this_thread::get_id()) {}
  ~HostThreads() override { joinAll(); }
  HostThreads(const HostThreads&) = delete;
  HostThreads& operator=(const HostThreads&) = delete;

  bool isMainThread() const override { return std::this_thread::get_id() == m_mainThread; }
  void performInBackground(std::function<void()> job) override;
  void performOnMainThreadAndWait(const std::function<void()>& work) override;

  /// The main loop of a host without a window: does the jobs' work on the main thread until no job is left, then joins
  /// them. `tick` is called about every 50 ms meanwhile. Not from within a job's work on the main thread.
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

  const std::thread::id m_mainThread;
  MainThreadMailbox m_mailbox;
  std::atomic<int> m_running{0};
  std::mutex m_mutex;
  std::list<Job> m_jobs;
  bool m_closed = false;
};

}  // namespace glossmill
