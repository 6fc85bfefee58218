#include "host/PosixSaveDisk.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <string>
#include <utility>

#include "host/FileStamps.h"
#include "host/OpenedDirectory.h"
#include "host/PreparedFile.h"
#include "host/SystemError.h"
#include "host/WriteAll.h"

namespace glossmill {

namespace {

constexpr mode_t kOwnerOnly = 0700;
constexpr mode_t kOwnerOnlyFile = 0600;

std::string_view environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : std::string_view();
}

FileUrl stateDirectoryOfEnvironment() {
  const std::string_view state = environment("XDG_STATE_HOME");
  if (state.starts_with('/')) return FileUrl(state).appending("glossmill");
  const std::string_view home = environment("HOME");
  if (!home.starts_with('/')) return {};
  return FileUrl(home).appending(".local/state/glossmill");
}

struct Freed {
  void operator()(char* text) const { std::free(text); }
  void operator()(DIR* directory) const { closedir(directory); }
};

/// Empty when the system cannot say.
std::string realPath(const FileUrl& url) {
  const std::unique_ptr<char, Freed> path(realpath(url.path().c_str(), nullptr));
  return path ? path.get() : "";
}

class PosixGrowingFile : public GrowingFile {
 public:
  explicit PosixGrowingFile(FileDescriptor file) : m_file(std::move(file)) {}

  Outcome append(std::string_view bytes) override {
    const Outcome written = writeAll(m_file.number(), bytes);
    if (!written) return written;
    return fsync(m_file.number()) == 0 ? Outcome(Done{}) : systemError(errno);
  }

 private:
  FileDescriptor m_file;
};

class PosixLock : public DirectoryLock {
 public:
  explicit PosixLock(FileDescriptor directory) : m_directory(std::move(directory)) {}

 private:
  FileDescriptor m_directory;
};

bool isRunning(long process) {
  return kill(static_cast<pid_t>(process), 0) == 0 || errno != ESRCH;
}

bool isDirectory(const FileUrl& url) {
  struct stat info {};
  return stat(url.path().c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

/// Makes one directory in another that was opened and looked at.
Outcome makeDirectory(const FileUrl& directory, mode_t mode, const FileUrl& within) {
  const std::string real = realPath(directory.parent());
  const FileUrl parent = real.empty() ? directory.parent() : FileUrl(real);
  const std::string name(directory.lastPathComponent());
  const Result<OpenedDirectory> above = openWithin(parent, within, parent.appending(name));
  if (!above) return above.error();
  if (mkdirat(above.value().number(), name.c_str(), mode) != 0) return systemError(errno, "directory");
  above.value().flush();
  return Done{};
}

Outcome makeDirectories(const FileUrl& directory, mode_t mode, const FileUrl& within) {
  if (isDirectory(directory)) return Done{};
  if (!isDirectory(directory.parent())) {
    if (directory.parent() == directory) return systemError(ENOENT, "directory");
    const Outcome above = makeDirectories(directory.parent(), mode, within);
    if (!above) return above;
  }
  return makeDirectory(directory, mode, within);
}

}  // namespace

PosixSaveDisk::PosixSaveDisk() : m_stateDirectory(stateDirectoryOfEnvironment()) {}

Result<FileUrl> PosixSaveDisk::resolve(const FileUrl& url) {
  const Result<FileUrl> target = followLinks(url);
  if (!target) return target;
  const std::string whole = realPath(target.value());
  if (!whole.empty()) return FileUrl(whole);
  if (target.value().parent() == target.value()) return target;
  const Result<FileUrl> above = resolve(target.value().parent());
  return above ? Result<FileUrl>(above.value().appending(target.value().lastPathComponent())) : above;
}

Result<std::optional<FileStamp>> PosixSaveDisk::stampOf(const FileUrl& file) {
  struct stat info {};
  if (stat(file.path().c_str(), &info) == 0) return std::optional(glossmill::stampOf(info));
  if (errno == ENOENT) return std::optional<FileStamp>();
  return systemError(errno);
}

Result<std::unique_ptr<PreparedWrite>> PosixSaveDisk::prepare(const FileUrl& file, const BytePieces& bytes,
                                                              const WriteLimits& limits) {
  return prepareFile(file, bytes, limits);
}

Outcome PosixSaveDisk::createDirectory(const FileUrl& directory, bool intermediate, const WriteLimits& limits) {
  if (intermediate) return makeDirectories(directory, 0777, limits.within);
  return makeDirectory(directory, 0777, limits.within);
}

std::vector<FileUrl> PosixSaveDisk::abandonedWrites(const FileUrl& directory) {
  std::vector<FileUrl> found;
  const std::unique_ptr<DIR, Freed> opened(opendir(directory.path().c_str()));
  if (!opened) return found;
  while (const dirent* entry = readdir(opened.get())) {
    const long owner = temporaryFileOwner(entry->d_name);
    if (owner > 0 && !isRunning(owner)) found.push_back(directory.appending(entry->d_name));
  }
  return found;
}

Outcome PosixSaveDisk::rename(const FileUrl& from, const FileUrl& to) {
  if (std::rename(from.path().c_str(), to.path().c_str()) != 0) return systemError(errno);
  const Result<OpenedDirectory> directory = OpenedDirectory::open(to.parent());
  if (directory) directory.value().flush();
  return Done{};
}

Outcome PosixSaveDisk::remove(const FileUrl& url) {
  if (std::remove(url.path().c_str()) == 0 || errno == ENOENT) return Done{};
  return systemError(errno);
}

Result<FileUrl> PosixSaveDisk::stateDirectory() {
  if (m_stateDirectory.empty()) return Error{"Neither XDG_STATE_HOME nor HOME names a directory."};
  return m_stateDirectory;
}

Outcome PosixSaveDisk::createPrivateDirectory(const FileUrl& directory) {
  return makeDirectories(directory, kOwnerOnly, {});
}

Outcome PosixSaveDisk::writePrivate(const FileUrl& file, const BytePieces& bytes) {
  const Result<std::unique_ptr<PreparedWrite>> prepared = prepareFile(file, bytes, {{}, kOwnerOnlyFile});
  return prepared ? prepared.value()->putInPlace() : Outcome(prepared.error());
}

Result<std::unique_ptr<GrowingFile>> PosixSaveDisk::openGrowing(const FileUrl& file) {
  const Outcome made = createPrivateDirectory(file.parent());
  if (!made) return made.error();
  FileDescriptor opened(::open(file.path().c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, kOwnerOnlyFile));
  if (!opened) return systemError(errno);
  return std::unique_ptr<GrowingFile>(std::make_unique<PosixGrowingFile>(std::move(opened)));
}

Result<std::unique_ptr<DirectoryLock>> PosixSaveDisk::tryLock(const FileUrl& directory) {
  FileDescriptor opened(::open(directory.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!opened) return systemError(errno, "directory");
  if (flock(opened.number(), LOCK_EX | LOCK_NB) == 0) {
    return std::unique_ptr<DirectoryLock>(std::make_unique<PosixLock>(std::move(opened)));
  }
  if (errno == EWOULDBLOCK) return std::unique_ptr<DirectoryLock>();
  return systemError(errno, "directory");
}

std::int64_t PosixSaveDisk::processId() const {
  return getpid();
}

std::int64_t PosixSaveDisk::now() const {
  return std::time(nullptr);
}

}  // namespace glossmill
