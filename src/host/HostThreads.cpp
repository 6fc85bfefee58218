#include "host/HostThreads.h"

#include <chrono>
#include <exception>
#include <system_error>
#include <utility>

namespace glossmill {

namespace {

using Clock = MainThreadMailbox::Clock;

constexpr std::chrono::milliseconds kTickInterval{50};
constexpr Clock::duration kOneWork{
    0};  ///< the next is done more quickly by who brings it, once the main thread is parked

}  // namespace

void HostThreads::performInBackground(std::function<void()> job) {
  joinEnded();
  const std::lock_guard lock(m_mutex);
  if (m_closed) return;
  std::list<Job> started(1);
  Job& entry = started.front();
  m_running.fetch_add(1, std::memory_order_acq_rel);
  try {
    entry.thread = std::thread([this, &entry, work = std::move(job)] { run(work, entry); });
  } catch (const std::system_error&) {
    m_running.fetch_sub(1, std::memory_order_acq_rel);
    throw;
  }
  m_jobs.splice(m_jobs.end(), started);
}

void HostThreads::run(const std::function<void()>& work, Job& job) {
  try {
    work();
  } catch (...) {
    m_mailbox.performAndWait([problem = std::current_exception()] { std::rethrow_exception(problem); });
  }
  job.ended.store(true, std::memory_order_release);
  m_running.fetch_sub(1, std::memory_order_acq_rel);
  m_mailbox.nudge();
}

void HostThreads::performOnMainThreadAndWait(const std::function<void()>& work) {
  if (isMainThread()) {
    work();
    return;
  }
  m_mailbox.performAndWait(work);
}

void HostThreads::runUntilIdle(const std::function<void()>& tick) {
  Clock::time_point nextTick = Clock::now() + kTickInterval;
  while (jobsRunning() > 0) {
    m_mailbox.parkUntil(nextTick);
    if (Clock::now() >= nextTick) {
      if (tick) tick();
      nextTick = Clock::now() + kTickInterval;
    }
    m_mailbox.drain(kOneWork);
  }
  joinEnded();
}

void HostThreads::joinEnded() {
  const std::lock_guard lock(m_mutex);
  m_jobs.remove_if([](Job& job) {
    if (!job.ended.load(std::memory_order_acquire)) return false;
    job.thread.join();
    return true;
  });
}

void HostThreads::joinAll() {
  m_mailbox.close();
  std::list<Job> jobs;
  {
    const std::lock_guard lock(m_mutex);
    m_closed = true;
    jobs.swap(m_jobs);
  }
  for (Job& job : jobs) job.thread.join();
}

}  // namespace glossmill
