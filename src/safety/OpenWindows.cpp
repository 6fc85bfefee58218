#include "safety/OpenWindows.h"

#include <charconv>
#include <utility>

#include "safety/ProjectState.h"

namespace glossmill {

namespace {

constexpr int kMostOfAProcess = 100;

/// "1234-0" is of process 1234.
std::optional<std::int64_t> processIn(std::string_view name) {
  std::int64_t process = 0;
  const auto [end, problem] = std::from_chars(name.data(), name.data() + name.size(), process);
  return problem == std::errc() ? std::optional(process) : std::nullopt;
}

}  // namespace

OpenWindows::OpenWindows(Files& files, SaveDisk& disk, const FileUrl& project)
    : m_files(files), m_disk(disk), m_project(project) {}

std::optional<FileUrl> OpenWindows::directory() {
  const Result<FileUrl> state = stateDirectoryOf(m_disk, m_project);
  return state ? std::optional(state.value().appending("windows")) : std::nullopt;
}

/// A name that is locked belongs to another window of this process.
void OpenWindows::enter() {
  const std::optional<FileUrl> windows = directory();
  for (int number = 0; windows && !m_lock && number < kMostOfAProcess; ++number) {
    const FileUrl own = windows->appending(std::to_string(m_disk.processId()) + "-" + std::to_string(number));
    if (!m_disk.createPrivateDirectory(own)) return;
    Result<std::unique_ptr<DirectoryLock>> lock = m_disk.tryLock(own);
    if (!lock) return;
    m_lock = std::move(lock.value());
    m_own = own;
  }
}

void OpenWindows::leave() {
  if (!m_lock) return;
  static_cast<void>(m_disk.remove(m_own));
  m_lock.reset();
}

std::vector<std::int64_t> OpenWindows::others() {
  std::vector<std::int64_t> processes;
  const std::optional<FileUrl> windows = directory();
  const auto entries = windows ? m_files.list(*windows) : Result<std::vector<DirectoryEntry>>(Error{});
  if (!entries) return processes;
  for (const DirectoryEntry& entry : entries.value()) {
    const FileUrl window = windows->appending(entry.name);
    const std::optional<std::int64_t> process = processIn(entry.name);
    if (process && !(m_lock && window == m_own) && isOpen(window)) processes.push_back(*process);
  }
  return processes;
}

bool OpenWindows::isOpen(const FileUrl& window) {
  const Result<std::unique_ptr<DirectoryLock>> lock = m_disk.tryLock(window);
  if (!lock) return false;
  if (!lock.value()) return true;
  static_cast<void>(m_disk.remove(window));
  return false;
}

}  // namespace glossmill
