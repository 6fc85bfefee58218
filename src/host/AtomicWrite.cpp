#include "host/AtomicWrite.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <optional>
#include <string>

#include "host/FileDescriptor.h"
#include "host/SystemError.h"

namespace glossmill {

namespace {

constexpr int kMostLinks = 40;
constexpr int kMostNames = 1000;
constexpr auto kSameOwner = static_cast<uid_t>(-1);

/// Follows the links that the last component of `path` stands for; a link to nothing leads to the name it gives.
Result<FileUrl> followLinks(FileUrl path) {
  for (int links = 0; links < kMostLinks; ++links) {
    std::array<char, PATH_MAX> target{};
    const ssize_t length = readlink(path.path().c_str(), target.data(), target.size());
    if (length < 0) return path;
    const std::string_view next(target.data(), static_cast<std::size_t>(length));
    path = next.starts_with('/') ? FileUrl(next) : path.parent().appending(next);
  }
  return systemError(ELOOP);
}

/// The attributes of the file to be replaced, nothing when there is none; an error when it must not be replaced.
Result<std::optional<struct stat>> formerFile(const FileUrl& target) {
  struct stat info {};
  if (stat(target.path().c_str(), &info) != 0) {
    if (errno == ENOENT) return std::optional<struct stat>();
    return systemError(errno);
  }
  if (S_ISDIR(info.st_mode)) return systemError(EISDIR);
  if (!S_ISREG(info.st_mode)) return notARegularFile();
  if (faccessat(AT_FDCWD, target.path().c_str(), W_OK, AT_EACCESS) != 0) return systemError(errno);
  return std::optional(info);
}

/// A new file with a name of its own in the directory, removed again unless it was renamed.
class TemporaryFile {
 public:
  /// No one but the owner may look into the file before it has the permissions of the former one.
  TemporaryFile(const FileUrl& directory, mode_t mode) : m_file(-1) {
    static std::atomic<unsigned> counter{0};
    for (int attempt = 0; attempt < kMostNames && !m_file; ++attempt) {
      const unsigned number = counter.fetch_add(1);
      m_path = directory.appending(".glossmill-" + std::to_string(getpid()) + "-" + std::to_string(number) + ".tmp");
      m_file = FileDescriptor(::open(m_path.path().c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
      if (!m_file && errno != EEXIST) break;
    }
    m_exists = static_cast<bool>(m_file);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    if (m_exists) unlink(m_path.path().c_str());
  }

  bool isOpen() const { return static_cast<bool>(m_file); }
  bool take(const struct stat& former);
  Outcome writeAll(const BytePieces& next);
  bool flushAndClose() { return fsync(m_file.number()) == 0 && m_file.close(); }
  bool renameTo(const FileUrl& target);

 private:
  bool write(std::string_view bytes);

  FileUrl m_path;
  FileDescriptor m_file;
  bool m_exists = false;
};

/// Takes over the former file's permissions, and its owner or at least its group where the system allows it: who shares
/// the file by its group is to keep it. The owner comes first, because changing it may take permissions away.
bool TemporaryFile::take(const struct stat& former) {
  const bool ownerKept = fchown(m_file.number(), former.st_uid, former.st_gid) == 0;
  const bool groupKept = ownerKept || fchown(m_file.number(), kSameOwner, former.st_gid) == 0;
  const mode_t kept = groupKept ? 07777 : 0707;
  return fchmod(m_file.number(), former.st_mode & kept) == 0;
}

bool TemporaryFile::write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(m_file.number(), bytes.data(), bytes.size());
    if (written >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return false;
    }
  }
  return true;
}

Outcome TemporaryFile::writeAll(const BytePieces& next) {
  while (true) {
    const Result<std::string_view> piece = next();
    if (!piece) return piece.error();
    if (piece.value().empty()) return Done{};
    if (!write(piece.value())) return systemError(errno);
  }
}

bool TemporaryFile::renameTo(const FileUrl& target) {
  if (rename(m_path.path().c_str(), target.path().c_str()) != 0) return false;
  m_exists = false;
  return true;
}

/// Makes the rename itself survive a power cut. Some file systems cannot; the file is whole either way.
void flushDirectory(const FileUrl& directory) {
  const FileDescriptor opened(::open(directory.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened) fsync(opened.number());
}

}  // namespace

Outcome writeAtomically(const FileUrl& file, const BytePieces& next) {
  const Result<FileUrl> target = followLinks(file);
  if (!target) return target.error();
  const Result<std::optional<struct stat>> former = formerFile(target.value());
  if (!former) return former.error();
  const FileUrl directory = target.value().parent();
  TemporaryFile temporary(directory, former.value() ? 0600 : 0666);
  if (!temporary.isOpen()) return systemError(errno, "directory");
  if (former.value() && !temporary.take(*former.value())) return systemError(errno);
  const Outcome written = temporary.writeAll(next);
  if (!written) return written;
  if (!temporary.flushAndClose()) return systemError(errno);
  if (!temporary.renameTo(target.value())) return systemError(errno);
  flushDirectory(directory);
  return Done{};
}

}  // namespace glossmill
