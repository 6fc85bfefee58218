#include "xcode/JobTurns.h"

namespace glossmill {

std::optional<std::size_t> JobTurns::claimUntilReady() {
  std::unique_lock lock(m_mutex);
  while (!m_isReady[m_taken % kPlaces]) {
    if (m_next < m_count && hasPlace()) return m_next++;
    m_finished.wait(lock);
  }
  return std::nullopt;
}

void JobTurns::take() {
  const std::lock_guard lock(m_mutex);
  m_isReady[m_taken % kPlaces] = false;
  if (m_next == m_taken + kPlaces) m_freed.notify_one();
  ++m_taken;
}

std::optional<std::size_t> JobTurns::claim() {
  std::unique_lock lock(m_mutex);
  m_freed.wait(lock, [this] { return m_isStopped || m_next == m_count || hasPlace(); });
  if (m_isStopped || m_next == m_count) return std::nullopt;
  return m_next++;
}

void JobTurns::finish(std::size_t job) {
  const std::lock_guard lock(m_mutex);
  m_isReady[job % kPlaces] = true;
  if (job == m_taken) m_finished.notify_one();
}

void JobTurns::stop() {
  const std::lock_guard lock(m_mutex);
  m_isStopped = true;
  m_freed.notify_one();
}

}  // namespace glossmill
