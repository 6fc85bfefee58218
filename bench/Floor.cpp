// glossmill-bench-floor DIR: reads every byte of the sources and strings files below DIR once, through one window, and
// counts one value among them. Nothing that reads those files can be faster, so times are given as multiples of its
// time.

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace {

constexpr std::size_t kWindowBytes = std::size_t{256} * 1024;
constexpr char kCounted = '"';

struct Count {
  std::unique_ptr<char[]> window = std::make_unique<char[]>(kWindowBytes);
  std::size_t found = 0;
  bool failed = false;
};

// Narrow counters, emptied before they can overflow, so that the compiler compares a whole register of bytes at a time.
std::size_t countIn(std::string_view bytes) {
  constexpr std::size_t kLanes = 64;
  std::size_t found = 0;
  while (bytes.size() >= kLanes) {
    std::array<unsigned char, kLanes> lanes{};
    const std::size_t rows = std::min<std::size_t>(bytes.size() / kLanes, 255);
    for (std::size_t row = 0; row < rows; ++row) {
      const char* const start = bytes.data() + row * kLanes;
      for (std::size_t lane = 0; lane < kLanes; ++lane) {
        lanes[lane] = static_cast<unsigned char>(lanes[lane] + (start[lane] == kCounted ? 1 : 0));
      }
    }
    for (const unsigned char lane : lanes) found += lane;
    bytes.remove_prefix(rows * kLanes);
  }
  return found + static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), kCounted));
}

void countFile(int directory, const char* name, Count& count) {
  const int file = openat(directory, name, O_RDONLY | O_CLOEXEC);
  if (file < 0) {
    count.failed = true;
    return;
  }
  ssize_t got = 0;
  while ((got = read(file, count.window.get(), kWindowBytes)) > 0) {
    count.found += countIn({count.window.get(), static_cast<std::size_t>(got)});
  }
  if (got < 0) count.failed = true;
  close(file);
}

unsigned char kindOf(int directory, const dirent& entry) {
  if (entry.d_type != DT_UNKNOWN) return entry.d_type;
  struct stat status {};
  if (fstatat(directory, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) return DT_UNKNOWN;
  return S_ISDIR(status.st_mode) ? DT_DIR : DT_REG;
}

void countDirectory(int descriptor, Count& count) {
  DIR* const listing = descriptor < 0 ? nullptr : fdopendir(descriptor);
  if (listing == nullptr) {
    count.failed = true;
    return;
  }
  while (const dirent* const entry = readdir(listing)) {
    const std::string_view name = entry->d_name;
    if (name.front() == '.') continue;
    const unsigned char kind = kindOf(descriptor, *entry);
    if (kind == DT_DIR) countDirectory(openat(descriptor, entry->d_name, O_RDONLY | O_DIRECTORY | O_CLOEXEC), count);
    if (kind == DT_REG && (name.ends_with(".m") || name.ends_with(".strings"))) {
      countFile(descriptor, entry->d_name, count);
    }
  }
  closedir(listing);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) {
    std::fputs("usage: glossmill-bench-floor DIR\n", stderr);
    return 2;
  }
  Count count;
  countDirectory(open(arguments[1], O_RDONLY | O_DIRECTORY | O_CLOEXEC), count);
  if (count.failed) {
    std::fputs("glossmill-bench-floor: not everything could be read\n", stderr);
    return 3;
  }
  std::printf("%zu\n", count.found);
  return 0;
}
