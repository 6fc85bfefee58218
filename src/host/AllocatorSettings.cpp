#include "host/AllocatorSettings.h"

#include <cstdlib>  // tells which C library this is
#if defined(__GLIBC__)
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <climits>
#include <cstdint>
#endif

namespace glossmill {

#if defined(__GLIBC__)

namespace {

constexpr int kStep = 16 * 1024 * 1024;
/// Of addresses, not of memory; only what lies there comes in large pages. A system that does not give that much is
/// asked for less.
constexpr int kLargestReserve = 127 * kStep;
constexpr int kSmallestReserve = 16 * kStep;

/// Touching fresh memory page by page is a good part of a short scan. Where the system does not offer larger pages,
/// nothing happens.
void askForHugePages(void* start, void* end) {
  constexpr std::uintptr_t kHugePage = 2 * 1024 * 1024;
  const std::uintptr_t first = (reinterpret_cast<std::uintptr_t>(start) + kHugePage - 1) / kHugePage * kHugePage;
  const std::uintptr_t last = reinterpret_cast<std::uintptr_t>(end) / kHugePage * kHugePage;
  // Another allocator than the C library's, such as that of a sanitizer, places memory elsewhere.
  if (first >= last || last - first > 2 * std::uintptr_t{kLargestReserve}) return;
  madvise(reinterpret_cast<void*>(first), last - first, MADV_HUGEPAGE);
}

/// False when the system does not give it.
bool takeReserve(int bytes) {
  mallopt(M_TOP_PAD, bytes);
  void* const start = std::malloc(kStep);
  if (!start) return false;
  askForHugePages(start, sbrk(0));
  std::free(start);
  return true;
}

}  // namespace

void setAllocatorForScans() {
  mallopt(M_ARENA_MAX, 1);
  mallopt(M_MMAP_THRESHOLD, 2 * kStep);  // the most that the library takes
  mallopt(M_TRIM_THRESHOLD, INT_MAX);
  for (int reserve = kLargestReserve; reserve >= kSmallestReserve && !takeReserve(reserve);) reserve /= 4;
  mallopt(M_TOP_PAD, kStep);
}

#else

void setAllocatorForScans() {}

#endif

}  // namespace glossmill
