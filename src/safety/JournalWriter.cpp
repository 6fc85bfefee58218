#include "safety/JournalWriter.h"

#include <chrono>
#include <utility>

namespace glossmill {

namespace {
constexpr std::chrono::milliseconds kGather{200};  // more lines may come, and share the flush
}

JournalWriter::~JournalWriter() {
  {
    const std::lock_guard lock(m_mutex);
    m_ends = true;
  }
  m_arrived.notify_one();
  if (m_thread.joinable()) m_thread.join();
}

void JournalWriter::append(std::string_view lines) {
  const std::unique_lock lock(m_mutex);
  m_work.lines += lines;
  hand(lock);
}

void JournalWriter::replace(std::string text) {
  const std::unique_lock lock(m_mutex);
  m_work = {std::move(text), {}};
  hand(lock);
}

void JournalWriter::hand(const std::unique_lock<std::mutex>&) {
  if (!m_thread.joinable()) m_thread = std::thread([this] { run(); });
  m_arrived.notify_one();
}

void JournalWriter::flush() {
  std::unique_lock lock(m_mutex);
  m_isUrgent = true;
  m_arrived.notify_one();
  m_written.wait(lock, [this] { return m_work.empty() && !m_isWriting; });
  m_isUrgent = false;
}

std::optional<Error> JournalWriter::problem() const {
  const std::lock_guard lock(m_mutex);
  return m_problem;
}

void JournalWriter::run() {
  std::unique_lock lock(m_mutex);
  while (true) {
    m_arrived.wait(lock, [this] { return m_ends || !m_work.empty(); });
    if (m_work.empty()) return;
    m_arrived.wait_for(lock, kGather, [this] { return m_ends || m_isUrgent; });
    const Work work = std::exchange(m_work, {});
    m_isWriting = true;
    lock.unlock();
    const Outcome written = write(work);
    lock.lock();
    m_isWriting = false;
    m_problem = written ? std::nullopt : std::optional(written.error());
    m_written.notify_all();
  }
}

Outcome JournalWriter::write(const Work& work) {
  if (work.whole) {
    const Outcome replaced = replaceWhole(*work.whole);
    if (!replaced) return replaced;
  }
  if (work.lines.empty()) return Done{};
  if (!m_growing) {
    Result<std::unique_ptr<GrowingFile>> opened = m_disk.openGrowing(m_file);
    if (!opened) return opened.error();
    m_growing = std::move(opened.value());
  }
  return m_growing->append(work.lines);
}

Outcome JournalWriter::replaceWhole(const std::string& text) {
  m_growing.reset();
  if (text.empty()) return m_disk.remove(m_file);
  const Outcome made = m_disk.createPrivateDirectory(m_file.parent());
  return made ? m_disk.writePrivate(m_file, onePiece(text)) : made;
}

}  // namespace glossmill
