// Stands in front of the system's calls for files when it is preloaded, and lets them fail as a Plan says.

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <map>
#include <mutex>
#include <string>

#include "Plan.h"

namespace faults {

namespace {

/// The call that would have been made without the shim.
template <typename Function>
Function* next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// What the open descriptors and directories stand for.
class Paths {
 public:
  void set(int descriptor, const std::string& path) {
    const std::lock_guard lock(m_mutex);
    m_ofDescriptor[descriptor] = path;
  }
  std::string of(int descriptor) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_ofDescriptor.find(descriptor);
    return found == m_ofDescriptor.end() ? std::string() : found->second;
  }
  void forget(int descriptor) {
    const std::lock_guard lock(m_mutex);
    m_ofDescriptor.erase(descriptor);
  }

 private:
  std::mutex m_mutex;
  std::map<int, std::string> m_ofDescriptor;
};

Paths& paths() {
  static Paths* const kPaths = new Paths;
  return *kPaths;
}

std::string fullPath(int directory, const char* path) {
  const std::string name = path ? path : "";
  if (name.starts_with('/')) return name;
  if (directory != AT_FDCWD) return paths().of(directory) + "/" + name;
  std::array<char, PATH_MAX> current{};
  return std::string(getcwd(current.data(), current.size()) ? current.data() : "") + "/" + name;
}

/// Makes the call `go`, or what the plan puts in its place; `failed` is what the call gives when it fails.
template <typename Value, typename Go>
Value call(Kind kind, const std::string& path, Value failed, const Go& go) {
  const Action action = actionFor(kind, path);
  if (action.effect == Effect::Fail) {
    errno = action.code;
    return failed;
  }
  if (action.effect == Effect::KillBefore) raise(SIGKILL);
  if (action.effect == Effect::RunBefore) runCommand();
  const Value value = go(action.effect);
  if (action.effect == Effect::KillAfter) raise(SIGKILL);
  return value;
}

template <typename Go>
int simple(Kind kind, const std::string& path, const Go& go) {
  return call(kind, path, -1, [&go](Effect) { return go(); });
}

int opened(int directory, const char* path, int flags, mode_t mode) {
  static const auto kOpenat = next<int(int, const char*, int, ...)>("openat64");
  const std::string full = fullPath(directory, path);
  return simple(Kind::Open, full, [&] {
    const int descriptor = kOpenat(directory, path, flags, mode);
    if (descriptor >= 0) paths().set(descriptor, full);
    return descriptor;
  });
}

/// Gives back half of what was read.
ssize_t shortened(int descriptor, ssize_t got) {
  if (got < 2) return got;
  const ssize_t kept = got / 2;
  return lseek(descriptor, kept - got, SEEK_CUR) < 0 ? got : kept;
}

bool createsFile(int flags) {
  return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

}  // namespace

}  // namespace faults

using faults::call;
using faults::Effect;
using faults::fullPath;
using faults::Kind;
using faults::next;
using faults::paths;
using faults::simple;

extern "C" {

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = faults::createsFile(flags) ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  return faults::opened(AT_FDCWD, path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = faults::createsFile(flags) ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  return faults::opened(AT_FDCWD, path, flags, mode);
}

int openat(int directory, const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = faults::createsFile(flags) ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  return faults::opened(directory, path, flags, mode);
}

int openat64(int directory, const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = faults::createsFile(flags) ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  return faults::opened(directory, path, flags, mode);
}

int close(int descriptor) {
  static const auto kNext = next<int(int)>("close");
  paths().forget(descriptor);
  return kNext(descriptor);
}

DIR* opendir(const char* path) {
  static const auto kNext = next<DIR*(const char*)>("opendir");
  const std::string full = fullPath(AT_FDCWD, path);
  return call(Kind::Opendir, full, static_cast<DIR*>(nullptr), [&](Effect) {
    DIR* const directory = kNext(path);
    if (directory) paths().set(dirfd(directory), full);
    return directory;
  });
}

dirent* readdir(DIR* directory) {
  static const auto kNext = next<dirent*(DIR*)>("readdir");
  return call(Kind::Readdir, paths().of(dirfd(directory)), static_cast<dirent*>(nullptr),
              [&](Effect) { return kNext(directory); });
}

dirent64* readdir64(DIR* directory) {
  static const auto kNext = next<dirent64*(DIR*)>("readdir64");
  return call(Kind::Readdir, paths().of(dirfd(directory)), static_cast<dirent64*>(nullptr),
              [&](Effect) { return kNext(directory); });
}

ssize_t read(int descriptor, void* buffer, size_t length) {
  static const auto kNext = next<ssize_t(int, void*, size_t)>("read");
  return call(Kind::Read, paths().of(descriptor), ssize_t{-1}, [&](Effect effect) {
    if (effect == Effect::End) return ssize_t{0};
    const ssize_t got = kNext(descriptor, buffer, length);
    return effect == Effect::Short ? faults::shortened(descriptor, got) : got;
  });
}

ssize_t write(int descriptor, const void* bytes, size_t length) {
  static const auto kNext = next<ssize_t(int, const void*, size_t)>("write");
  return call(Kind::Write, paths().of(descriptor), ssize_t{-1}, [&](Effect effect) {
    if (effect == Effect::End) return ssize_t{0};
    return kNext(descriptor, bytes, effect == Effect::Short && length > 1 ? length / 2 : length);
  });
}

int stat(const char* path, struct stat* info) {
  static const auto kNext = next<int(const char*, struct stat*)>("stat");
  return simple(Kind::Stat, fullPath(AT_FDCWD, path), [&] { return kNext(path, info); });
}

int lstat(const char* path, struct stat* info) {
  static const auto kNext = next<int(const char*, struct stat*)>("lstat");
  return simple(Kind::Stat, fullPath(AT_FDCWD, path), [&] { return kNext(path, info); });
}

int fstat(int descriptor, struct stat* info) {
  static const auto kNext = next<int(int, struct stat*)>("fstat");
  return simple(Kind::Stat, paths().of(descriptor), [&] { return kNext(descriptor, info); });
}

int fstatat(int directory, const char* path, struct stat* info, int flags) {
  static const auto kNext = next<int(int, const char*, struct stat*, int)>("fstatat");
  return simple(Kind::Stat, fullPath(directory, path), [&] { return kNext(directory, path, info, flags); });
}

ssize_t readlink(const char* path, char* target, size_t size) {
  static const auto kNext = next<ssize_t(const char*, char*, size_t)>("readlink");
  return call(Kind::Readlink, fullPath(AT_FDCWD, path), ssize_t{-1}, [&](Effect) { return kNext(path, target, size); });
}

ssize_t readlinkat(int directory, const char* path, char* target, size_t size) {
  static const auto kNext = next<ssize_t(int, const char*, char*, size_t)>("readlinkat");
  return call(Kind::Readlink, fullPath(directory, path), ssize_t{-1},
              [&](Effect) { return kNext(directory, path, target, size); });
}

int fsync(int descriptor) {
  static const auto kNext = next<int(int)>("fsync");
  return simple(Kind::Fsync, paths().of(descriptor), [&] { return kNext(descriptor); });
}

int rename(const char* from, const char* to) {
  static const auto kNext = next<int(const char*, const char*)>("rename");
  return simple(Kind::Rename, fullPath(AT_FDCWD, to), [&] { return kNext(from, to); });
}

int renameat(int fromDirectory, const char* from, int toDirectory, const char* to) {
  static const auto kNext = next<int(int, const char*, int, const char*)>("renameat");
  return simple(Kind::Rename, fullPath(toDirectory, to), [&] { return kNext(fromDirectory, from, toDirectory, to); });
}

int renameat2(int fromDirectory, const char* from, int toDirectory, const char* to, unsigned int flags) {
  static const auto kNext = next<int(int, const char*, int, const char*, unsigned int)>("renameat2");
  return simple(Kind::Rename, fullPath(toDirectory, to),
                [&] { return kNext(fromDirectory, from, toDirectory, to, flags); });
}

int mkdir(const char* path, mode_t mode) {
  static const auto kNext = next<int(const char*, mode_t)>("mkdir");
  return simple(Kind::Mkdir, fullPath(AT_FDCWD, path), [&] { return kNext(path, mode); });
}

int mkdirat(int directory, const char* path, mode_t mode) {
  static const auto kNext = next<int(int, const char*, mode_t)>("mkdirat");
  return simple(Kind::Mkdir, fullPath(directory, path), [&] { return kNext(directory, path, mode); });
}

int unlink(const char* path) {
  static const auto kNext = next<int(const char*)>("unlink");
  return simple(Kind::Unlink, fullPath(AT_FDCWD, path), [&] { return kNext(path); });
}

int unlinkat(int directory, const char* path, int flags) {
  static const auto kNext = next<int(int, const char*, int)>("unlinkat");
  return simple(Kind::Unlink, fullPath(directory, path), [&] { return kNext(directory, path, flags); });
}

int fchmod(int descriptor, mode_t mode) {
  static const auto kNext = next<int(int, mode_t)>("fchmod");
  return simple(Kind::Chmod, paths().of(descriptor), [&] { return kNext(descriptor, mode); });
}

int fchown(int descriptor, uid_t owner, gid_t group) {
  static const auto kNext = next<int(int, uid_t, gid_t)>("fchown");
  return simple(Kind::Chmod, paths().of(descriptor), [&] { return kNext(descriptor, owner, group); });
}

int fsetxattr(int descriptor, const char* name, const void* value, size_t size, int flags) {
  static const auto kNext = next<int(int, const char*, const void*, size_t, int)>("fsetxattr");
  return simple(Kind::Xattr, paths().of(descriptor), [&] { return kNext(descriptor, name, value, size, flags); });
}

int flock(int descriptor, int operation) {
  static const auto kNext = next<int(int, int)>("flock");
  return simple(Kind::Lock, paths().of(descriptor), [&] { return kNext(descriptor, operation); });
}

}  // extern "C"
