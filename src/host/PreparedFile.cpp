#include "host/PreparedFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cstdio>
#include <string>
#include <utility>

#include "host/ExtendedAttributes.h"
#include "host/FileDescriptor.h"
#include "host/FileStamps.h"
#include "host/OpenedDirectory.h"
#include "host/SystemError.h"
#include "host/WriteAll.h"

namespace glossmill {

namespace {

constexpr int kMostLinks = 40;
constexpr int kMostNames = 1000;
constexpr auto kSameOwner = static_cast<uid_t>(-1);
constexpr std::string_view kNameStart = ".glossmill-";
constexpr std::string_view kNameEnd = ".tmp";

#if defined(__linux__)
constexpr unsigned kExchange = RENAME_EXCHANGE;
constexpr unsigned kNoReplace = RENAME_NOREPLACE;
#else
constexpr unsigned kExchange = 1;
constexpr unsigned kNoReplace = 2;
#endif

bool isUnsupported(int code) {
  return code == EINVAL || code == ENOSYS;
}

Error changedMeanwhile() {
  return {"It was changed by another program while it was saved."};
}

/// The attributes of the file to be replaced, nothing when there is none; an error when it must not be replaced.
Result<std::optional<struct stat>> formerFile(const OpenedDirectory& directory, const std::string& name) {
  struct stat info {};
  if (fstatat(directory.number(), name.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0) {
    if (errno == ENOENT) return std::optional<struct stat>();
    return systemError(errno);
  }
  if (S_ISDIR(info.st_mode)) return systemError(EISDIR);
  if (!S_ISREG(info.st_mode)) return notARegularFile();
  if (faccessat(directory.number(), name.c_str(), W_OK, AT_EACCESS) != 0) return systemError(errno);
  return std::optional(info);
}

/// A new file with a name of its own in the directory.
class PreparedFile : public PreparedWrite {
 public:
  PreparedFile(OpenedDirectory directory, std::string name, const std::optional<struct stat>& former)
      : m_directory(std::move(directory)),
        m_name(std::move(name)),
        m_target(m_directory.url().appending(m_name)),
        m_formerInfo(former),
        m_former(former ? std::optional(stampOf(*former)) : std::nullopt),
        m_file(-1) {}
  PreparedFile(const PreparedFile&) = delete;
  PreparedFile& operator=(const PreparedFile&) = delete;
  ~PreparedFile() override {
    if (m_exists) unlinkat(m_directory.number(), m_temporaryName.c_str(), 0);
  }

  Outcome create(const std::optional<std::uint32_t>& modeIfNew);
  Outcome takeOver();
  Outcome writeAll(const BytePieces& next);
  Outcome flushAndClose();

  const FileUrl& target() const override { return m_target; }
  const FileUrl& temporary() const override { return m_temporary; }
  const std::optional<FileStamp>& former() const override { return m_former; }
  Outcome putInPlace() override;

 private:
  bool takePermissions();
  std::string formerPath() const;
  Outcome exchange();
  Outcome appear();
  Outcome replace();
  int renameWith(unsigned flags) const;
  bool isStillFormer(const struct stat& there) const;

  OpenedDirectory m_directory;
  std::string m_name;
  FileUrl m_target;
  std::optional<struct stat> m_formerInfo;
  std::optional<FileStamp> m_former;
  std::string m_temporaryName;
  FileUrl m_temporary;
  FileDescriptor m_file;
  bool m_exists = false;
};

/// No one but the owner may look into the file before it has the permissions of the former one.
Outcome PreparedFile::create(const std::optional<std::uint32_t>& modeIfNew) {
  static std::atomic<unsigned> counter{0};
  const mode_t mode = m_formerInfo ? 0600 : 0666;
  for (int attempt = 0; attempt < kMostNames && !m_file; ++attempt) {
    m_temporaryName = std::string(kNameStart) + std::to_string(getpid()) + "-" + std::to_string(counter.fetch_add(1)) +
                      std::string(kNameEnd);
    m_file = FileDescriptor(openat(m_directory.number(), m_temporaryName.c_str(),
                                   O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode));
    if (!m_file && errno != EEXIST) break;
  }
  if (!m_file) return systemError(errno, "directory");
  m_exists = true;
  m_temporary = m_directory.url().appending(m_temporaryName);
  if (m_formerInfo || !modeIfNew) return Done{};
  return fchmod(m_file.number(), *modeIfNew & 07777) == 0 ? Outcome(Done{}) : systemError(errno);
}

/// The owner comes first, because changing it may take permissions away; who shares the file by its group keeps it.
bool PreparedFile::takePermissions() {
  const struct stat& former = *m_formerInfo;
  const bool ownerKept = fchown(m_file.number(), former.st_uid, former.st_gid) == 0;
  const bool groupKept = ownerKept || fchown(m_file.number(), kSameOwner, former.st_gid) == 0;
  const mode_t kept = groupKept ? 07777 : 0707;
  return fchmod(m_file.number(), former.st_mode & kept) == 0;
}

Outcome PreparedFile::takeOver() {
  if (!m_formerInfo) return Done{};
  if (!takePermissions()) return systemError(errno);
  return copyExtendedAttributes(formerPath(), m_file.number());
}

/// A path that leads through the opened directory, where the system has such paths.
std::string PreparedFile::formerPath() const {
#if defined(__linux__)
  return "/proc/self/fd/" + std::to_string(m_directory.number()) + "/" + m_name;
#else
  return m_target.path();
#endif
}

Outcome PreparedFile::writeAll(const BytePieces& next) {
  while (true) {
    const Result<std::string_view> piece = next();
    if (!piece) return piece.error();
    if (piece.value().empty()) return Done{};
    const Outcome written = glossmill::writeAll(m_file.number(), piece.value());
    if (!written) return written;
  }
}

Outcome PreparedFile::flushAndClose() {
  if (fsync(m_file.number()) != 0 || !m_file.close()) return systemError(errno);
  return Done{};
}

/// Somebody may write the file between the look at it and its replacement. So the two change places, and whatever was
/// there is looked at before it goes.
Outcome PreparedFile::putInPlace() {
  const Outcome placed = m_former ? exchange() : appear();
  if (!placed) return placed;
  m_exists = false;
  m_directory.flush();
  return Done{};
}

Outcome PreparedFile::exchange() {
  const int code = renameWith(kExchange);
  if (code == ENOENT || isUnsupported(code)) return replace();
  if (code != 0) return systemError(code);
  struct stat there {};
  const bool isKnown =
      fstatat(m_directory.number(), m_temporaryName.c_str(), &there, AT_SYMLINK_NOFOLLOW) == 0 && isStillFormer(there);
  if (isKnown) {
    // What stays when this fails is removed by the next save.
    static_cast<void>(unlinkat(m_directory.number(), m_temporaryName.c_str(), 0));
    return Done{};
  }
  const int back = renameWith(kExchange);
  return back == 0 ? changedMeanwhile() : systemError(back);
}

Outcome PreparedFile::appear() {
  const int code = renameWith(kNoReplace);
  if (code == EEXIST) return changedMeanwhile();
  if (isUnsupported(code)) return replace();
  return code == 0 ? Outcome(Done{}) : systemError(code);
}

/// For a file that has vanished, and for file systems that cannot do better.
Outcome PreparedFile::replace() {
  const bool isReplaced =
      renameat(m_directory.number(), m_temporaryName.c_str(), m_directory.number(), m_name.c_str()) == 0;
  return isReplaced ? Outcome(Done{}) : systemError(errno);
}

/// 0, or why not.
int PreparedFile::renameWith(unsigned flags) const {
#if defined(__linux__)
  const bool isDone =
      renameat2(m_directory.number(), m_temporaryName.c_str(), m_directory.number(), m_name.c_str(), flags) == 0;
  return isDone ? 0 : errno;
#else
  static_cast<void>(flags);
  return ENOSYS;
#endif
}

/// A rename changes the time of change.
bool PreparedFile::isStillFormer(const struct stat& there) const {
  FileStamp now = stampOf(there);
  now.changed = m_former->changed;
  return now == *m_former;
}

}  // namespace

Result<FileUrl> followLinks(FileUrl path) {
  for (int links = 0; links < kMostLinks; ++links) {
    std::array<char, PATH_MAX> target{};
    const ssize_t length = readlink(path.path().c_str(), target.data(), target.size());
    if (length < 0 && errno != EINVAL && errno != ENOENT) return systemError(errno);
    if (length < 0) return path;
    const std::string_view next(target.data(), static_cast<std::size_t>(length));
    path = next.starts_with('/') ? FileUrl(next) : path.parent().appending(next);
  }
  return systemError(ELOOP);
}

long temporaryFileOwner(std::string_view name) {
  if (!name.starts_with(kNameStart) || !name.ends_with(kNameEnd)) return 0;
  name.remove_prefix(kNameStart.size());
  long owner = 0;
  const auto [end, problem] = std::from_chars(name.data(), name.data() + name.size(), owner);
  return problem == std::errc() && *end == '-' ? owner : 0;
}

Result<std::unique_ptr<PreparedWrite>> prepareFile(const FileUrl& file, const BytePieces& bytes,
                                                   const WriteLimits& limits) {
  const Result<FileUrl> target = followLinks(file);
  if (!target) return target.error();
  Result<OpenedDirectory> directory = openWithin(target.value().parent(), limits.within, target.value());
  if (!directory) return directory.error();
  std::string name(target.value().lastPathComponent());
  const Result<std::optional<struct stat>> former = formerFile(directory.value(), name);
  if (!former) return former.error();
  auto prepared = std::make_unique<PreparedFile>(std::move(directory.value()), std::move(name), former.value());
  Outcome done = prepared->create(limits.modeIfNew);
  if (done) done = prepared->takeOver();
  if (done) done = prepared->writeAll(bytes);
  if (done) done = prepared->flushAndClose();
  if (!done) return done.error();
  return std::unique_ptr<PreparedWrite>(std::move(prepared));
}

}  // namespace glossmill
