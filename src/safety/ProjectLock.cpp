#include "safety/ProjectLock.h"

#include <charconv>
#include <string>
#include <thread>
#include <utility>

#include "platform/ReadText.h"
#include "safety/ProjectState.h"

namespace glossmill {

namespace {

using LockClock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kBetweenTries{50};

}  // namespace

ProjectLock::ProjectLock(Files& files, SaveDisk& disk, const FileUrl& project)
    : m_files(files), m_disk(disk), m_project(project) {}

ProjectLock::~ProjectLock() {
  release();
}

Result<std::optional<ProjectLock::Held>> ProjectLock::acquire(const GoesOn& goesOn) {
  while (!m_lock) {
    Result<std::unique_ptr<DirectoryLock>> lock = m_disk.tryLock(m_project);
    if (!lock) return lock.error();
    m_lock = std::move(lock.value());
    if (!m_lock && !goesOn()) return std::optional(Held{holder()});
  }
  noteHolder();
  return std::optional<Held>();
}

Result<std::optional<ProjectLock::Held>> ProjectLock::acquire(LockClock::duration patience) {
  const LockClock::time_point end = LockClock::now() + patience;
  return acquire([end] {
    if (LockClock::now() >= end) return false;
    std::this_thread::sleep_for(kBetweenTries);
    return true;
  });
}

/// The note goes first: whoever gets the lock next writes one of its own.
void ProjectLock::release() {
  if (!m_lock) return;
  const std::optional<FileUrl> file = holderFile();
  if (file) static_cast<void>(m_disk.remove(*file));
  m_lock.reset();
}

std::optional<FileUrl> ProjectLock::holderFile() {
  const Result<FileUrl> state = stateDirectoryOf(m_disk, m_project);
  return state ? std::optional(state.value().appending("writer")) : std::nullopt;
}

/// Only the message to others needs it, so it may fail.
void ProjectLock::noteHolder() {
  const std::optional<FileUrl> file = holderFile();
  if (!file || !m_disk.createPrivateDirectory(file->parent())) return;
  const std::string number = std::to_string(m_disk.processId());
  static_cast<void>(m_disk.writePrivate(*file, onePiece(number)));
}

std::optional<std::int64_t> ProjectLock::holder() {
  const std::optional<FileUrl> file = holderFile();
  const Result<std::string> text = file ? readText(m_files, *file) : Result<std::string>(Error{});
  if (!text) return std::nullopt;
  std::int64_t number = 0;
  const std::string& digits = text.value();
  const auto [end, problem] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return problem == std::errc() ? std::optional(number) : std::nullopt;
}

}  // namespace glossmill
