#include "host/PosixFiles.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "host/AtomicWrite.h"
#include "host/FileDescriptor.h"
#include "host/OpenedDirectory.h"
#include "host/SystemError.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

struct DirectoryCloser {
  void operator()(DIR* directory) const { closedir(directory); }
};
using OpenDirectory = std::unique_ptr<DIR, DirectoryCloser>;

EntryKind kindOfMode(mode_t mode) {
  return S_ISDIR(mode) ? EntryKind::Directory : EntryKind::File;
}

FileIdentity identityOfNode(const struct stat& info) {
  return {static_cast<std::uint64_t>(info.st_dev), static_cast<std::uint64_t>(info.st_ino)};
}

DirectoryEntry linkEntry(DIR* directory, const char* name) {
  struct stat info {};
  DirectoryEntry entry{name};
  entry.isLink = true;
  if (fstatat(dirfd(directory), name, &info, 0) != 0) return entry;
  entry.kind = kindOfMode(info.st_mode);
  entry.target = identityOfNode(info);
  return entry;
}

/// Asks the disk, where a file system's listing does not tell the kind.
DirectoryEntry askedEntry(DIR* directory, const char* name) {
  struct stat info {};
  DirectoryEntry entry{name};
  if (fstatat(dirfd(directory), name, &info, AT_SYMLINK_NOFOLLOW) != 0) return entry;
  if (S_ISLNK(info.st_mode)) return linkEntry(directory, name);
  entry.kind = kindOfMode(info.st_mode);
  entry.isRegular = S_ISREG(info.st_mode);
  return entry;
}

DirectoryEntry entryOf(DIR* directory, const dirent& found) {
  if (found.d_type == DT_LNK) return linkEntry(directory, found.d_name);
  if (found.d_type == DT_UNKNOWN) return askedEntry(directory, found.d_name);
  const EntryKind kind = found.d_type == DT_DIR ? EntryKind::Directory : EntryKind::File;
  return {found.d_name, kind, false, std::nullopt, found.d_type == DT_REG};
}

class PosixReader : public ByteReader {
 public:
  explicit PosixReader(FileDescriptor file) : m_file(std::move(file)) {}

  /// Only nothing at all is the end: a disk may give less than was asked for at any time.
  Result<std::size_t> read(std::span<char> buffer) override {
    while (true) {
      const ssize_t got = ::read(m_file.number(), buffer.data(), buffer.size());
      if (got >= 0) return static_cast<std::size_t>(got);
      if (errno != EINTR) return systemError(errno);
    }
  }

 private:
  FileDescriptor m_file;
};

/// Opening a pipe without this flag would wait for its other end.
constexpr int kReadFlags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

}  // namespace

Result<std::vector<DirectoryEntry>> PosixFiles::list(const FileUrl& directory) {
  const OpenDirectory opened(opendir(directory.path().c_str()));
  if (!opened) return systemError(errno, "directory");
  std::vector<DirectoryEntry> entries;
  errno = 0;
  while (const dirent* found = readdir(opened.get())) {
    if (found->d_name[0] != '.') entries.push_back(entryOf(opened.get(), *found));
    errno = 0;
  }
  if (errno != 0) return systemError(errno, "directory");
  std::sort(entries.begin(), entries.end(),
            [](const DirectoryEntry& a, const DirectoryEntry& b) { return a.name < b.name; });
  return entries;
}

EntryKind PosixFiles::kindOf(const FileUrl& url) {
  struct stat info {};
  if (stat(url.path().c_str(), &info) != 0) return EntryKind::Missing;
  return kindOfMode(info.st_mode);
}

std::optional<FileIdentity> PosixFiles::identityOf(const FileUrl& url) {
  struct stat info {};
  if (stat(url.path().c_str(), &info) != 0) return std::nullopt;
  return identityOfNode(info);
}

Result<std::unique_ptr<ByteReader>> PosixFiles::open(const FileUrl& file) {
  FileDescriptor opened(::open(file.path().c_str(), kReadFlags));
  if (!opened) return systemError(errno);
  struct stat info {};
  if (fstat(opened.number(), &info) != 0) return systemError(errno);
  if (S_ISDIR(info.st_mode)) return systemError(EISDIR);
  if (!S_ISREG(info.st_mode)) return notARegularFile();
  return std::unique_ptr<ByteReader>(std::make_unique<PosixReader>(std::move(opened)));
}

Outcome PosixFiles::createDirectory(const FileUrl& directory, bool intermediate) {
  if (mkdir(directory.path().c_str(), 0777) == 0) {
    const Result<OpenedDirectory> above = OpenedDirectory::open(directory.parent());
    if (above) above.value().flush();
    return Done{};
  }
  const int code = errno;
  if (!intermediate) return systemError(code, "directory");
  if (kindOf(directory) == EntryKind::Directory) return Done{};
  if (code != ENOENT || directory.parent() == directory) return systemError(code, "directory");
  const Outcome above = createDirectory(directory.parent(), true);
  if (!above) return above;
  return createDirectory(directory, false);
}

Outcome PosixFiles::writeText(const FileUrl& file, std::string_view text) {
  return writeTextPieces(file, [text]() mutable { return std::exchange(text, {}); });
}

Outcome PosixFiles::writeTextPieces(const FileUrl& file, const TextPieces& next) {
  return writeAtomically(file, [&next]() -> Result<std::string_view> {
    const std::string_view piece = next();
    if (!isValidUtf8(piece)) return Error{"The text cannot be written as UTF-8."};
    return piece;
  });
}

}  // namespace glossmill
