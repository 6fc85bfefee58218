#pragma once

#include <array>
#include <cstddef>
#include <exception>
#include <functional>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

#include "xcode/JobTurns.h"

namespace glossmill {

/// Does numbered jobs and gives their results in the order of the numbers, so that nobody notices who did what. Once
/// half a megabyte was read and jobs are left, a second thread does some of them ahead; where that cannot be started,
/// or there is little to do, all are done by the thread that takes the results. Jobs do not depend on one another. A
/// `Value` has a member `bytesRead`.
template <typename Value>
class JobsInOrder {
 public:
  using Job = std::function<Value(std::size_t number)>;

  /// What `job` works on outlives this; it is called from two threads. `onSecond` is called before the second one
  /// starts, with the number of the first job that it may do, on the thread that takes the results.
  JobsInOrder(std::size_t count, Job job, std::function<void(std::size_t)> onSecond = {})
      : m_count(count), m_turns(count), m_job(std::move(job)), m_onSecond(std::move(onSecond)) {}
  JobsInOrder(const JobsInOrder&) = delete;
  JobsInOrder& operator=(const JobsInOrder&) = delete;

  /// Waits for the job that is being done.
  ~JobsInOrder() {
    m_turns.stop();
    if (m_second.joinable()) m_second.join();
  }

  /// The next result, as long as there is one. What its job has thrown is thrown here.
  Value next() {
    while (const std::optional<std::size_t> job = m_turns.claimUntilReady()) run(*job);
    // The place may be written again once it was taken.
    Place place = std::exchange(m_places[m_taken++ % JobTurns::kPlaces], {});
    m_turns.take();
    if (place.problem) std::rethrow_exception(place.problem);
    m_bytes += place.value->bytesRead;
    if (m_bytes >= kWorthAThread && m_taken + 1 < m_count) startSecond();
    return *std::move(place.value);
  }

  bool hasSecond() const { return m_second.joinable(); }

 private:
  static constexpr std::size_t kWorthAThread = std::size_t{512} * 1024;

  struct Place {
    std::optional<Value> value;
    std::exception_ptr problem;
  };

  void run(std::size_t job) {
    Place& place = m_places[job % JobTurns::kPlaces];
    try {
      place.value.emplace(m_job(job));
    } catch (...) {
      place.problem = std::current_exception();
    }
    m_turns.finish(job);
  }

  void startSecond() {
    if (std::exchange(m_wasStarted, true)) return;
    if (m_onSecond) m_onSecond(m_taken);
    try {
      m_second = std::thread([this] {
        while (const std::optional<std::size_t> job = m_turns.claim()) run(*job);
      });
    } catch (const std::system_error&) {
      // Then one thread has to do.
    }
  }

  const std::size_t m_count;
  std::size_t m_taken = 0;
  std::size_t m_bytes = 0;
  JobTurns m_turns;
  Job m_job;
  std::function<void(std::size_t)> m_onSecond;
  std::array<Place, JobTurns::kPlaces> m_places;
  bool m_wasStarted = false;
  std::thread m_second;
};

}  // namespace glossmill
