#pragma once

#include <chrono>
#include <cstddef>
#include <vector>

namespace glossmill::bench {

/// Runs from its construction.
class Stopwatch {
 public:
  double seconds() const { return std::chrono::duration<double>(Clock::now() - m_start).count(); }

 private:
  using Clock = std::chrono::steady_clock;

  Clock::time_point m_start = Clock::now();
};

/// How long one thing took each time, in seconds.
class Samples {
 public:
  void add(double seconds) { m_seconds.push_back(seconds); }
  std::size_t count() const { return m_seconds.size(); }
  /// 0 without samples; of an even number the upper one in the middle.
  double median() const;
  double worst() const;

 private:
  std::vector<double> m_seconds;
};

/// The most of the moments, given in seconds and in their order, that lie within one second.
std::size_t mostInOneSecond(const std::vector<double>& moments);

}  // namespace glossmill::bench
