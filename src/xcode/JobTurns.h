#pragma once

#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <optional>

namespace glossmill {

/// Which of two threads does which of many numbered jobs, whose results one of them takes in their order. There are
/// kPlaces places for results that were not taken yet; jobs beyond them wait.
class JobTurns {
 public:
  static constexpr std::size_t kPlaces = 16;

  explicit JobTurns(std::size_t count) : m_count(count) {}

  // ---- The thread that takes the results ----

  /// A job that nobody does yet, while the next result is not there; nothing when it is.
  std::optional<std::size_t> claimUntilReady();
  /// The next result was taken, and its place is free.
  void take();

  // ---- The other thread ----

  /// The next job that nobody does yet, once there is a place for its result; nothing when there is none left, or after
  /// stop().
  std::optional<std::size_t> claim();

  // ---- Both ----

  void finish(std::size_t job);
  void stop();

 private:
  bool hasPlace() const { return m_next < m_taken + kPlaces; }

  const std::size_t m_count;
  std::mutex m_mutex;
  std::condition_variable m_finished;
  std::condition_variable m_freed;
  std::size_t m_next = 0;   ///< of the jobs that nobody does yet
  std::size_t m_taken = 0;  ///< of the results
  bool m_isReady[kPlaces] = {};
  bool m_isStopped = false;
};

}  // namespace glossmill
