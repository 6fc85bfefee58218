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
  if (!m_thread.joinable()) return;
  m_thread.join();
  if (m_isEmpty) static_cast<void>(m_disk.remove(m_file.parent()));
}

void JournalWriter::append(std::string_view lines) {
  hand({std::nullopt, std::string(lines)});
}

void JournalWriter::replace(std::string text) {
  hand({std::move(text), {}});
}

/// The thread is woken once for however much comes until it has written.
void JournalWriter::hand(Work work) {
  const std::lock_guard lock(m_mutex);
  const bool isAwake = !m_work.empty();
  if (work.whole) {
    m_work = std::move(work);
  } else {
    m_work.lines += work.lines;
  }
  if (isAwake) return;
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

/// Before anything lies in it, so that nobody takes the journal for one that was left.
Outcome JournalWriter::takeDirectory() {
  if (m_lock) return Done{};
  const Outcome made = m_disk.createPrivateDirectory(m_file.parent());
  if (!made) return made;
  Result<std::unique_ptr<DirectoryLock>> locked = m_disk.tryLock(m_file.parent());
  if (!locked) return locked.error();
  m_lock = std::move(locked.value());
  return m_lock ? Outcome(Done{}) : Error{"Another process keeps the journal."};
}

Outcome JournalWriter::write(const Work& work) {
  const Outcome taken = takeDirectory();
  if (!taken) return taken;
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
  m_isEmpty = false;
  return m_growing->append(work.lines);
}

Outcome JournalWriter::replaceWhole(const std::string& text) {
  m_growing.reset();
  m_isEmpty = text.empty();
  return text.empty() ? m_disk.remove(m_file) : m_disk.writePrivate(m_file, onePiece(text));
}

}  // namespace glossmill
