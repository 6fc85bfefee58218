#include "host/OpenedDirectory.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "host/SystemError.h"

namespace glossmill {

namespace {

constexpr int kDirectoryFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
#if defined(O_PATH)
constexpr int kStepFlags = O_PATH | O_DIRECTORY | O_CLOEXEC;  // steps up need no permission to read
#else
constexpr int kStepFlags = kDirectoryFlags;
#endif

bool isSame(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

}  // namespace

Result<OpenedDirectory> OpenedDirectory::open(const FileUrl& url) {
  FileDescriptor opened(::open(url.path().c_str(), kDirectoryFlags));
  // Names can be made and taken away in a directory that may not be listed.
  if (!opened && errno == EACCES) opened = FileDescriptor(::open(url.path().c_str(), kStepFlags));
  if (!opened) return systemError(errno, "directory");
  return OpenedDirectory(url, std::move(opened));
}

/// Goes up by "..", which no link can lead astray.
Result<bool> OpenedDirectory::isWithin(const FileUrl& above) const {
  struct stat wanted {};
  struct stat here {};
  if (stat(above.path().c_str(), &wanted) != 0) return systemError(errno, "directory");
  if (fstat(number(), &here) != 0) return systemError(errno, "directory");
  FileDescriptor step(-1);
  while (!isSame(here, wanted)) {
    FileDescriptor up(openat(step ? step.number() : number(), "..", kStepFlags));
    struct stat next {};
    if (!up || fstat(up.number(), &next) != 0) return systemError(errno, "directory");
    if (isSame(next, here)) return false;
    step = std::move(up);
    here = next;
  }
  return true;
}

void OpenedDirectory::flush() const {
  fsync(number());
}

Result<OpenedDirectory> openWithin(const FileUrl& url, const FileUrl& within, const FileUrl& file) {
  Result<OpenedDirectory> directory = OpenedDirectory::open(url);
  if (!directory || within.empty()) return directory;
  const Result<bool> isInside = directory.value().isWithin(within);
  if (!isInside) return isInside.error();
  if (isInside.value()) return directory;
  return Error{"It lies outside the project: it is " + file.path() + ".", ErrorKind::Outside};
}

}  // namespace glossmill
