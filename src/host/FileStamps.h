#pragma once

#include <sys/stat.h>

#include "platform/FileStamp.h"

namespace glossmill {

inline std::int64_t nanoseconds(const struct timespec& time) {
  constexpr std::int64_t kSecond = 1'000'000'000;
  return static_cast<std::int64_t>(time.tv_sec) * kSecond + static_cast<std::int64_t>(time.tv_nsec);
}

inline FileStamp stampOf(const struct stat& info) {
#if defined(__APPLE__)
  const struct timespec modified = info.st_mtimespec;
  const struct timespec changed = info.st_ctimespec;
#else
  const struct timespec modified = info.st_mtim;
  const struct timespec changed = info.st_ctim;
#endif
  return {static_cast<std::uint64_t>(info.st_size),
          nanoseconds(modified),
          nanoseconds(changed),
          static_cast<std::uint64_t>(info.st_dev),
          static_cast<std::uint64_t>(info.st_ino),
          static_cast<std::uint32_t>(info.st_mode & 07777),
          static_cast<std::uint32_t>(info.st_nlink)};
}

}  // namespace glossmill
