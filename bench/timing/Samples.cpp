#include "timing/Samples.h"

#include <algorithm>

namespace glossmill::bench {

double Samples::median() const {
  if (m_seconds.empty()) return 0;
  std::vector<double> sorted = m_seconds;
  const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
  std::nth_element(sorted.begin(), middle, sorted.end());
  return *middle;
}

double Samples::worst() const {
  return m_seconds.empty() ? 0 : *std::max_element(m_seconds.begin(), m_seconds.end());
}

std::size_t mostInOneSecond(const std::vector<double>& moments) {
  std::size_t most = 0;
  std::size_t first = 0;
  for (std::size_t last = 0; last < moments.size(); ++last) {
    while (moments[last] - moments[first] >= 1) ++first;
    most = std::max(most, last - first + 1);
  }
  return most;
}

}  // namespace glossmill::bench
